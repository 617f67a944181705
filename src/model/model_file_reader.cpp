#include "model/model_file_reader.h"

#include "common/core/windows1252.h"

// Std
#include <algorithm>
#include <bit>
#include <charconv>
#include <cstring>
#include <type_traits>
#include <vector>

namespace tnw {
namespace {

// OLE Variant type codes the host can write, and how many value bytes follow each.
enum VarType : std::uint16_t {
  kVtEmpty = 0,
  kVtNull = 1,
  kVtI2 = 2,
  kVtI4 = 3,
  kVtR4 = 4,
  kVtR8 = 5,
  kVtCy = 6,
  kVtDate = 7,
  kVtBstr = 8,
  kVtError = 10,
  kVtBool = 11,
  kVtUi1 = 17,
};

// A bounds-checked little-endian reader over the file image. After the first failure every
// further read fails too, and the failure's offset and kind are kept.
class Cursor {
 public:
  explicit Cursor(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

  bool failed() const { return m_problem != ModelReadProblem::None; }
  ModelReadProblem problem() const { return m_problem; }
  std::size_t offset() const { return m_pos; }

  bool skip(std::size_t n) {
    if (failed()) return false;
    if (m_bytes.size() - m_pos < n) return fail(ModelReadProblem::Truncated);
    m_pos += n;
    return true;
  }

  bool int16(std::int16_t& out) {
    std::uint16_t u = 0;
    if (!raw(u)) return false;
    out = static_cast<std::int16_t>(u);
    return true;
  }

  bool real(double& out) {
    std::uint64_t u = 0;
    if (!raw(u)) return false;
    out = std::bit_cast<double>(u);
    return true;
  }

  // A 2-byte length and that many Windows-1252 characters; out may be null to read over it.
  bool string(std::string* out) {
    std::uint16_t length = 0;
    const std::size_t start = m_pos;
    if (!raw(length)) return false;
    if (m_bytes.size() - m_pos < length) {
      m_pos = start;
      return fail(ModelReadProblem::Truncated);
    }
    if (out != nullptr) {
      const auto* first = reinterpret_cast<const char*>(m_bytes.data() + m_pos);
      const std::string_view text(first, length);
      // Plain ASCII, the usual case, is the same in UTF-8 and is taken whole.
      const bool ascii = std::all_of(text.begin(), text.end(),
                                     [](char ch) { return static_cast<std::uint8_t>(ch) < 0x80; });
      if (ascii) {
        out->assign(text);
      } else {
        *out = windows1252ToUtf8(text);
      }
    }
    m_pos += length;
    return true;
  }

  // A type code and its value; numbers are kept as doubles, Empty and Null as no value.
  bool variant(std::optional<double>* out) {
    // Empty, Null and Double, the Variants a model file is made of, are read straight through.
    if (!failed() && m_bytes.size() - m_pos >= 2) {
      const auto type = load<std::uint16_t>(m_pos);
      if (type == kVtEmpty || type == kVtNull) {
        m_pos += 2;
        if (out != nullptr) out->reset();
        return true;
      }
      if (type == kVtR8 && m_bytes.size() - m_pos >= 10) {
        const double v = std::bit_cast<double>(load<std::uint64_t>(m_pos + 2));
        m_pos += 10;
        if (out != nullptr) *out = v;
        return true;
      }
    }
    const std::size_t start = m_pos;
    std::uint16_t type = 0;
    if (!raw(type)) return false;
    std::optional<double> value;
    if (!variantValue(type, value)) {
      if (m_problem == ModelReadProblem::Truncated) m_pos = start;
      return false;
    }
    if (out != nullptr) *out = value;
    return true;
  }

 private:
  template <typename T>
  bool raw(T& out) {
    if (failed()) return false;
    if (m_bytes.size() - m_pos < sizeof(T)) return fail(ModelReadProblem::Truncated);
    out = load<T>(m_pos);
    m_pos += sizeof(T);
    return true;
  }

  // The little-endian T at offset at, which must be in range.
  template <typename T>
  T load(std::size_t at) const {
    T v = 0;
    std::memcpy(&v, m_bytes.data() + at, sizeof(T));
    if constexpr (std::endian::native == std::endian::big) v = byteSwapped(v);
    return v;
  }

  template <typename T>
  static T byteSwapped(T v) {
    T r = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) {
      r = static_cast<T>((r << 8) | static_cast<T>(v & 0xFF));
      v = static_cast<T>(v >> 8);
    }
    return r;
  }

  bool variantValue(std::uint16_t type, std::optional<double>& value) {
    switch (type) {
      case kVtEmpty:
      case kVtNull:
        return true;
      case kVtI2:
      case kVtBool:
        return number<std::int16_t, std::uint16_t>(value);
      case kVtI4:
        return number<std::int32_t, std::uint32_t>(value);
      case kVtR4:
        return number<float, std::uint32_t>(value);
      case kVtR8:
      case kVtDate:
        return number<double, std::uint64_t>(value);
      case kVtCy: {
        std::uint64_t u = 0;
        if (!raw(u)) return false;
        value = static_cast<double>(static_cast<std::int64_t>(u)) / 10000.0;
        return true;
      }
      case kVtError:
        return skip(4);
      case kVtUi1:
        return number<std::uint8_t, std::uint8_t>(value);
      case kVtBstr: {
        std::string text;
        if (!string(&text)) return false;
        value = numberFromText(text);
        return true;
      }
      default:
        m_pos -= 2;  // report the offset of the unknown type code itself
        return fail(ModelReadProblem::UnknownVariantType);
    }
  }

  template <typename T, typename U>
  bool number(std::optional<double>& value) {
    U u = 0;
    if (!raw(u)) return false;
    value = static_cast<double>(std::bit_cast<T>(u));
    return true;
  }

  // A text Variant counts as a number only when the whole text (blanks aside) is one.
  static std::optional<double> numberFromText(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return std::nullopt;
    const std::size_t last = text.find_last_not_of(' ');
    double v = 0.0;
    const char* begin = text.data() + first;
    const char* end = text.data() + last + 1;
    const auto res = std::from_chars(begin, end, v);
    if (res.ec != std::errc() || res.ptr != end) return std::nullopt;
    return v;
  }

  bool fail(ModelReadProblem problem) {
    m_problem = problem;
    return false;
  }

  std::span<const std::uint8_t> m_bytes;
  std::size_t m_pos = 0;
  ModelReadProblem m_problem = ModelReadProblem::None;
};

bool readModelHeader(Cursor& c, AttributeModel& m) {
  for (int i = 0; i < 6; ++i) {
    if (!c.string(nullptr)) return false;
  }
  return c.skip(4) && c.int16(m.NumAtt) && c.skip(2);
}

bool readStringsOver(Cursor& c, int count) {
  for (int i = 0; i < count; ++i) {
    if (!c.string(nullptr)) return false;
  }
  return true;
}

bool readAttributeTexts(Cursor& c, AttributeModel& m) {
  for (auto* texts : {&m.AttName, &m.AttDefinition, &m.AttOrientation}) {
    for (std::string& s : *texts) {
      if (!c.string(&s)) return false;
    }
  }
  return c.skip(std::size_t{2} * kMaxAttributes);
}

bool readVariantsOver(Cursor& c, int count) {
  for (int i = 0; i < count; ++i) {
    if (!c.variant(nullptr)) return false;
  }
  return true;
}

template <typename Array>
bool readAll(Cursor& c, Array& values) {
  for (auto& v : values) {
    bool ok = false;
    if constexpr (std::is_same_v<std::decay_t<decltype(v)>, double>) {
      ok = c.real(v);
    } else {
      ok = c.int16(v);
    }
    if (!ok) return false;
  }
  return true;
}

// Points are stored with the attribute index varying fastest.
bool readPoints(Cursor& c,
                std::array<std::array<std::optional<double>, kMaxPoints>, kMaxAttributes>& points) {
  for (std::size_t p = 0; p < kMaxPoints; ++p) {
    for (std::size_t a = 0; a < kMaxAttributes; ++a) {
      if (!c.variant(&points[a][p])) return false;
    }
  }
  return true;
}

bool readAttributeScales(Cursor& c, AttributeModel& m) {
  return c.skip(std::size_t{3} * 8 * kMaxAttributes) && readAll(c, m.AttScoreLow) &&
         readAll(c, m.AttScoreHigh) && c.skip(64) && readAll(c, m.NumPoints) &&
         readPoints(c, m.PointScore) && readPoints(c, m.PointValue) &&
         c.skip(std::size_t{2} * kMaxAttributes) && c.skip(992);
}

bool readPrevWeights(Cursor& c, AttributeModel& m) {
  return c.string(&m.PrevTNType) && c.variant(&m.PrevRefAtt) && readVariantsOver(c, 2) &&
         readAll(c, m.PrevWeight) && readAll(c, m.PrevWeightH) && readAll(c, m.PrevWeightL) &&
         c.string(nullptr);
}

}  // namespace

ModelReadReport ModelFileReader::read(std::span<const std::uint8_t> bytes, AttributeModel& model) {
  // Each block is cleared before it is read, and after a failed read the later blocks are still
  // cleared though nothing more is read into them: the whole model starts empty.
  model = AttributeModel{};
  Cursor c(bytes);
  ModelReadReport report;
  report.opened = true;
  // The blocks in file order; report.block counts those begun.
  const auto begin = [&report] {
    ++report.block;
    return true;
  };
  const bool read =
      begin() && readModelHeader(c, model) && begin() && c.skip(kBlock2Size) && begin() &&
      readStringsOver(c, kBlock3Strings) && begin() && readAttributeTexts(c, model) && begin() &&
      readVariantsOver(c, kBlock5Variants) && begin() && c.skip(kBlock6Size) && begin() &&
      readAttributeScales(c, model) && begin() && readPrevWeights(c, model);
  report.complete = read && !c.failed();
  report.offset = c.offset();
  report.problem = c.problem();
  return report;
}

ModelReadReport OpenRelatedFileForTNW(const std::string& PathAndFileName, AttributeModel& model,
                                      UiServices& ui) {
  ModelFileBytes file;
  try {
    file = readModelFileBytes(PathAndFileName, &ui);
  } catch (const std::exception&) {
    // Only memory can run out here. Nothing could be read, so the model is left as an empty
    // read leaves it: every block cleared.
    ModelReadReport report = ModelFileReader::read({}, model);
    report.problem = ModelReadProblem::ReadError;
    ui.setBusy(false);
    return report;
  }
  if (!file.opened) {
    ui.beep();
    ui.messageBox("There are problems in accessing the relevant data.", MessageIcon::Information,
                  "NORIX");
    ui.setBusy(false);
    ModelReadReport report;
    report.problem = ModelReadProblem::CannotOpen;
    return report;
  }
  ModelReadReport report = ModelFileReader::read(file.bytes(), model);
  if (file.readError && report.complete) {
    report.complete = false;
    report.problem = ModelReadProblem::ReadError;
  }
  ui.setBusy(false);
  return report;
}

}  // namespace tnw
