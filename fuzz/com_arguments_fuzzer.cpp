// Feeds GetCurFileData's argument conversion every kind of Variant a host could pass as NorixDir
// (values, references to values, to Strings and to Variants, arrays, references that point
// nowhere, types no Variant may have) and Strings of any length and content as PathAndFileName;
// then writes a text back into NorixDir and reads what a host leaves in an array of weights.
// Built natively against the OLE stand-in in tests/ole_standin. Besides the sanitizers, it checks
// that every text is UTF-8, that well-formed texts survive the way there and back, and that a
// written NorixDir reads back as written.

#include "component/windows/automation_values.h"

// Std
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <string>
#include <vector>

namespace {

void check(bool ok) {
  if (!ok) std::abort();
}

// Takes values from the front of the input; past its end everything is zero.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}
  std::uint8_t byte() { return m_at < m_size ? m_data[m_at++] : 0; }
  std::uint16_t word() { return std::uint16_t(byte() | byte() << 8); }
  void bytes(void* target, std::size_t count) {
    auto* out = static_cast<std::uint8_t*>(target);
    for (std::size_t i = 0; i < count; ++i) out[i] = byte();
  }

 private:
  const std::uint8_t* m_data;
  std::size_t m_size;
  std::size_t m_at = 0;
};

// What references in the Variants point to; all freed at the end.
struct Referenced {
  std::deque<std::uint64_t> numbers;
  std::deque<BSTR> texts;
  std::deque<VARIANT> variants;
  std::deque<SAFEARRAY*> arrays;
  ~Referenced() {
    for (BSTR text : texts) SysFreeString(text);
    for (VARIANT& value : variants) VariantClear(&value);
    for (SAFEARRAY* array : arrays) SafeArrayDestroy(array);
  }
};

// A BSTR of any byte length (odd ones too) and content, embedded nulls included; now and then null.
BSTR makeBstr(Input& in) {
  const std::uint8_t size = in.byte();
  if (size == 0xFF) return nullptr;
  std::string bytes(size, '\0');
  in.bytes(bytes.data(), bytes.size());
  return SysAllocStringByteLen(bytes.data(), UINT(bytes.size()));
}

VARIANT makeVariant(Input& in, Referenced& refs, int depth);

SAFEARRAY* makeArray(Input& in, Referenced& refs, VARTYPE type, int depth) {
  const ULONG count = in.byte() % 9;
  const auto lower = LONG(std::int8_t(in.byte()));
  SAFEARRAY* array = SafeArrayCreateVector(type, lower, count);
  check(array != nullptr);
  for (ULONG i = 0; i < count; ++i) {
    if (type == VT_VARIANT) {
      static_cast<VARIANT*>(array->pvData)[i] = makeVariant(in, refs, depth + 1);
    } else if (type == VT_BSTR) {
      static_cast<BSTR*>(array->pvData)[i] = makeBstr(in);
    } else {
      in.bytes(static_cast<char*>(array->pvData) + i * array->cbElements, array->cbElements);
    }
  }
  return array;
}

// Where a reference points: a cell of refs, or nowhere one time in sixteen.
template <class Cell>
Cell* cell(Input& in, std::deque<Cell>& cells, Cell value) {
  if (in.byte() % 16 == 0) return nullptr;
  cells.push_back(value);
  return &cells.back();
}

// The types the host language passes, as values and as references.
constexpr VARTYPE kTypes[] = {VT_EMPTY,
                              VT_NULL,
                              VT_I2,
                              VT_I4,
                              VT_R4,
                              VT_R8,
                              VT_CY,
                              VT_DATE,
                              VT_BSTR,
                              VT_DISPATCH,
                              VT_ERROR,
                              VT_BOOL,
                              VT_UNKNOWN,
                              VT_DECIMAL,
                              VT_I1,
                              VT_UI1,
                              VT_UI2,
                              VT_UI4,
                              VT_I8,
                              VT_UI8,
                              VT_INT,
                              VT_UINT,
                              VT_BYREF | VT_I2,
                              VT_BYREF | VT_I4,
                              VT_BYREF | VT_R8,
                              VT_BYREF | VT_BOOL,
                              VT_BYREF | VT_UI1,
                              VT_BYREF | VT_BSTR,
                              VT_BYREF | VT_VARIANT,
                              VT_BYREF | VT_DATE,
                              VT_BYREF | VT_DISPATCH,
                              VT_ARRAY | VT_VARIANT,
                              VT_ARRAY | VT_UI1,
                              VT_ARRAY | VT_BSTR,
                              VT_ARRAY | VT_I2,
                              VT_BYREF | VT_ARRAY | VT_VARIANT,
                              VT_BYREF | VT_ARRAY | VT_UI1};

VARIANT makeVariant(Input& in, Referenced& refs, int depth) {
  VARIANT value;
  std::memset(&value, 0, sizeof value);
  const std::uint8_t pick = in.byte();
  if (pick >= 0xF0 || depth > 2) {
    // Any type at all, even one no Variant may have, with nothing (null) behind it.
    value.vt = in.word();
    return value;
  }
  value.vt = kTypes[pick % std::size(kTypes)];
  const auto base = VARTYPE(value.vt & VT_TYPEMASK);
  if (value.vt & VT_ARRAY) {
    SAFEARRAY* array = makeArray(in, refs, base, depth);
    if (value.vt & VT_BYREF) {
      value.pparray = cell(in, refs.arrays, array);
      if (!value.pparray) SafeArrayDestroy(array);
    } else {
      value.parray = array;
    }
  } else if (value.vt == (VT_BYREF | VT_BSTR)) {
    BSTR text = makeBstr(in);
    value.pbstrVal = cell(in, refs.texts, text);
    if (!value.pbstrVal) SysFreeString(text);
  } else if (value.vt == (VT_BYREF | VT_VARIANT)) {
    const bool nowhere = in.byte() % 16 == 0;
    if (!nowhere) {
      refs.variants.push_back(makeVariant(in, refs, depth + 1));
      value.pvarVal = &refs.variants.back();
    }
  } else if (value.vt == (VT_BYREF | VT_DISPATCH)) {
    value.byref = cell(in, refs.numbers, std::uint64_t(0));  // a null object
  } else if (value.vt & VT_BYREF) {
    std::uint64_t number = 0;
    in.bytes(&number, sizeof number);
    value.byref = cell(in, refs.numbers, number);
  } else if (value.vt == VT_BSTR) {
    value.bstrVal = makeBstr(in);
  } else if (value.vt != VT_DISPATCH && value.vt != VT_UNKNOWN) {
    in.bytes(&value.llVal, sizeof value.llVal);
  }
  return value;
}

bool isUtf8(const std::string& text) {
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = std::uint8_t(text[i]);
    std::size_t more = 0;
    if ((lead & 0xE0) == 0xC0) {
      more = 1;
    } else if ((lead & 0xF0) == 0xE0) {
      more = 2;
    } else if ((lead & 0xF8) == 0xF0) {
      more = 3;
    } else if (lead >= 0x80) {
      return false;
    }
    if (i + more >= text.size()) return false;
    for (std::size_t k = 1; k <= more; ++k) {
      if ((std::uint8_t(text[i + k]) & 0xC0) != 0x80) return false;
    }
    i += more + 1;
  }
  return true;
}

// Whether text holds only whole surrogate pairs, so that it has an exact UTF-8 form.
bool wellFormed(BSTR text) {
  const UINT length = SysStringLen(text);
  for (UINT i = 0; i < length; ++i) {
    if (text[i] >= 0xDC00 && text[i] <= 0xDFFF) return false;
    if (text[i] >= 0xD800 && text[i] <= 0xDBFF) {
      if (i + 1 >= length || text[i + 1] < 0xDC00 || text[i + 1] > 0xDFFF) return false;
      ++i;
    }
  }
  return true;
}

// A String survives fromBstr and toBstr unchanged when it is well formed.
void checkRoundTrip(BSTR text) {
  const std::string narrow = tnw::fromBstr(text);
  check(isUtf8(narrow));
  if (!wellFormed(text)) return;
  BSTR again = tnw::toBstr(narrow);
  check(again != nullptr);
  const UINT length = SysStringLen(text);
  check(SysStringLen(again) == length);
  check(length == 0 || std::memcmp(again, text, length * sizeof(OLECHAR)) == 0);
  SysFreeString(again);
}

void checkWeights(Input& in, Referenced& refs) {
  VARIANT host = makeVariant(in, refs, 1);
  std::vector<double> values(in.byte() % 8, 0.5);
  const std::vector<double> before = values;
  if (V_VT(&host) == (VT_ARRAY | VT_VARIANT)) tnw::readVariantArray(V_ARRAY(&host), values);
  check(values.size() == before.size());
  for (double value : values) check(std::isfinite(value));
  VariantClear(&host);

  SAFEARRAY* array = nullptr;
  check(SUCCEEDED(tnw::toVariantArray(values, &array)));
  std::vector<double> read(values.size(), -1.0);
  tnw::readVariantArray(array, read);
  check(read == values);
  SafeArrayDestroy(array);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input in(data, size);
  Referenced refs;
  VARIANT norixDir = makeVariant(in, refs, 0);
  const auto fileIndex = short(in.word());
  BSTR path = makeBstr(in);
  const bool missing = in.byte() == 0xEE;

  tnw::CurFileDataArgs args;
  const wchar_t* problem = nullptr;
  const HRESULT hr =
      tnw::readCurFileDataArgs(missing ? nullptr : &norixDir, fileIndex, path, args, problem);
  check(SUCCEEDED(hr) == (problem == nullptr));
  if (SUCCEEDED(hr)) {
    check(isUtf8(args.NorixDir) && isUtf8(args.PathAndFileName));
    check(args.FileIndex == fileIndex);
    check(args.PathAndFileName == tnw::fromBstr(path));
    if (V_VT(&norixDir) == VT_BSTR) check(args.NorixDir == tnw::fromBstr(V_BSTR(&norixDir)));
    // A changed NorixDir goes back to the host's variable and reads back as written.
    BSTR other = makeBstr(in);
    const std::string changed = args.NorixDir + tnw::fromBstr(other);
    SysFreeString(other);
    if (SUCCEEDED(tnw::setVariantText(norixDir, changed))) {
      std::string again;
      check(SUCCEEDED(tnw::variantToText(norixDir, again)));
      check(again == changed);
    }
  }
  checkRoundTrip(path);
  SysFreeString(path);
  checkWeights(in, refs);
  VariantClear(&norixDir);
  return 0;
}
