#include "model/model_file_writer.h"

#include "common/core/windows1252.h"

// Std
#include <bit>
#include <cmath>
#include <fstream>
#include <type_traits>

namespace tnw {
namespace {

constexpr std::uint16_t kVtEmpty = 0;
constexpr std::uint16_t kVtI2 = 2;
constexpr std::uint16_t kVtR8 = 5;

class Bytes {
 public:
  explicit Bytes(std::vector<std::uint8_t>& out) : m_out(out) {}

  template <typename U>
  void raw(U u) {
    for (std::size_t i = 0; i < sizeof(U); ++i) {
      m_out.push_back(static_cast<std::uint8_t>(u >> (8 * i)));
    }
  }
  void int16(std::int16_t v) { raw(static_cast<std::uint16_t>(v)); }
  void real(double v) { raw(std::bit_cast<std::uint64_t>(v)); }
  void zeros(std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) m_out.push_back(0);
  }
  void string(const std::string& utf8) {
    std::string bytes = utf8ToWindows1252(utf8);
    if (bytes.size() > 0xFFFF) bytes.resize(0xFFFF);
    raw(static_cast<std::uint16_t>(bytes.size()));
    m_out.insert(m_out.end(), bytes.begin(), bytes.end());
  }
  void emptyStrings(int n) { zeros(2 * static_cast<std::size_t>(n)); }
  void emptyVariants(int n) { zeros(2 * static_cast<std::size_t>(n)); }
  void variant(const std::optional<double>& v) {
    if (!v) {
      raw(kVtEmpty);
    } else {
      raw(kVtR8);
      real(*v);
    }
  }
  void integralVariant(const std::optional<double>& v) {
    if (v && std::trunc(*v) == *v && *v >= -32768.0 && *v <= 32767.0) {
      raw(kVtI2);
      int16(static_cast<std::int16_t>(*v));
    } else {
      variant(v);
    }
  }
  template <typename Array>
  void all(const Array& values) {
    for (const auto& v : values) {
      if constexpr (std::is_same_v<std::decay_t<decltype(v)>, double>) {
        real(v);
      } else {
        int16(v);
      }
    }
  }
  void points(const std::array<std::array<std::optional<double>, kMaxPoints>, kMaxAttributes>& p) {
    for (std::size_t k = 0; k < kMaxPoints; ++k) {
      for (std::size_t a = 0; a < kMaxAttributes; ++a) variant(p[a][k]);
    }
  }

 private:
  std::vector<std::uint8_t>& m_out;
};

}  // namespace

ModelFileImage ModelFileWriter::write(const AttributeModel& m) {
  ModelFileImage image;
  Bytes out(image.bytes);
  auto begin = [&](int block) {
    image.blockStart[static_cast<std::size_t>(block - 1)] = image.bytes.size();
  };

  begin(1);
  out.emptyStrings(6);
  out.zeros(4);
  out.int16(m.NumAtt);
  out.zeros(2);
  begin(2);
  out.zeros(30);
  begin(3);
  out.emptyStrings(2 * 51);
  begin(4);
  for (const auto* texts : {&m.AttName, &m.AttDefinition, &m.AttOrientation}) {
    for (const std::string& s : *texts) out.string(s);
  }
  out.zeros(std::size_t{2} * kMaxAttributes);
  begin(5);
  out.emptyVariants(51 * 31);
  begin(6);
  out.zeros(12648);
  begin(7);
  out.zeros(std::size_t{3} * 8 * kMaxAttributes);
  out.all(m.AttScoreLow);
  out.all(m.AttScoreHigh);
  out.zeros(64);
  out.all(m.NumPoints);
  out.points(m.PointScore);
  out.points(m.PointValue);
  out.zeros(std::size_t{2} * kMaxAttributes);
  out.zeros(992);
  begin(8);
  out.string(m.PrevTNType);
  out.integralVariant(m.PrevRefAtt);
  out.emptyVariants(2);
  out.all(m.PrevWeight);
  out.all(m.PrevWeightH);
  out.all(m.PrevWeightL);
  out.emptyStrings(1);
  image.blockStart[8] = image.bytes.size();
  return image;
}

bool ModelFileWriter::writeFile(const AttributeModel& model, const std::string& path) {
  const ModelFileImage image = write(model);
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) return false;
  file.write(reinterpret_cast<const char*>(image.bytes.data()),
             static_cast<std::streamsize>(image.bytes.size()));
  file.close();
  return !file.fail();
}

}  // namespace tnw
