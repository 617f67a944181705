// The automation server's conversions of GetCurFileData's arguments, built natively over the OLE
// stand-in: what each kind of Variant a host may pass as NorixDir becomes, Strings of odd length
// or with embedded nulls as PathAndFileName, and writing NorixDir back to the host's variable.

#include "component/windows/automation_values.h"

#include <gtest/gtest.h>

// Std
#include <cstring>
#include <string>
#include <vector>

namespace tnw {
namespace {

// A BSTR freed at the end of the test.
class Bstr {
 public:
  explicit Bstr(const std::u16string& text)
      : m_text(SysAllocStringLen(text.data(), UINT(text.size()))) {}
  // Takes over a BSTR made elsewhere.
  static Bstr adopt(BSTR text) { return Bstr(text, 0); }
  ~Bstr() { SysFreeString(m_text); }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  BSTR get() const { return m_text; }
  BSTR* address() { return &m_text; }

 private:
  Bstr(BSTR text, int) : m_text(text) {}
  BSTR m_text;
};

VARIANT variant(VARTYPE type) {
  VARIANT value;
  std::memset(&value, 0, sizeof value);
  V_VT(&value) = type;
  return value;
}

struct Read {
  HRESULT hr;
  CurFileDataArgs args;
  std::wstring problem;
};

Read read(const VARIANT* NorixDir, BSTR PathAndFileName = nullptr, short FileIndex = 3) {
  Read result{};
  const wchar_t* problem = nullptr;
  result.hr = readCurFileDataArgs(NorixDir, FileIndex, PathAndFileName, result.args, problem);
  if (problem) result.problem = problem;
  return result;
}

TEST(AutomationValuesTest, aStringAndAStringByReferenceGiveTheirText) {
  VARIANT value = variant(VT_BSTR);
  Bstr text(u"C:\\NORIX \u03a9");
  V_BSTR(&value) = text.get();
  Bstr path(u"C:\\m.nrx");
  const Read direct = read(&value, path.get());
  EXPECT_EQ(direct.hr, S_OK);
  EXPECT_EQ(direct.args.NorixDir, "C:\\NORIX \xce\xa9");
  EXPECT_EQ(direct.args.PathAndFileName, "C:\\m.nrx");
  EXPECT_EQ(direct.args.FileIndex, 3);

  VARIANT reference = variant(VT_BYREF | VT_BSTR);
  V_BSTRREF(&reference) = text.address();
  EXPECT_EQ(read(&reference).args.NorixDir, "C:\\NORIX \xce\xa9");
  VARIANT outer = variant(VT_BYREF | VT_VARIANT);
  V_VARIANTREF(&outer) = &reference;
  EXPECT_EQ(read(&outer).args.NorixDir, "C:\\NORIX \xce\xa9");
}

TEST(AutomationValuesTest, numbersAndBooleansBecomeTextAsCStrMakesIt) {
  VARIANT number = variant(VT_I2);
  V_I2(&number) = -7;
  EXPECT_EQ(read(&number).args.NorixDir, "-7");
  VARIANT flag = variant(VT_BOOL);
  V_BOOL(&flag) = VARIANT_TRUE;
  EXPECT_EQ(read(&flag).args.NorixDir, "True");
  VARIANT empty = variant(VT_EMPTY);
  EXPECT_EQ(read(&empty).hr, S_OK);
  EXPECT_EQ(read(&empty).args.NorixDir, "");
}

TEST(AutomationValuesTest, nullArraysAndUnknownTypesAreNotATextAndSayWhy) {
  for (VARTYPE type : {VARTYPE(VT_NULL), VARTYPE(VT_ARRAY | VT_VARIANT), VARTYPE(0x0FFF),
                       VARTYPE(0x1000 | VT_I2), VARTYPE(VT_VARIANT)}) {
    VARIANT value = variant(type);
    const Read result = read(&value);
    EXPECT_EQ(result.hr, DISP_E_TYPEMISMATCH) << type;
    EXPECT_EQ(result.problem, L"Type mismatch: NorixDir is not a text.") << type;
  }
  const Read missing = read(nullptr);
  EXPECT_EQ(missing.hr, E_POINTER);
  EXPECT_EQ(missing.problem, L"NorixDir is missing.");
}

// Found by fuzzing (fuzz/corpus/com_arguments/reference_to_nowhere): a reference with a null
// pointer, which the system's conversion would follow.
TEST(AutomationValuesTest, aReferenceThatPointsNowhereIsRefusedWithoutFollowingIt) {
  for (VARTYPE type : {VARTYPE(VT_BYREF | VT_R8), VARTYPE(VT_BYREF | VT_BSTR),
                       VARTYPE(VT_BYREF | VT_VARIANT), VARTYPE(VT_BYREF | VT_ARRAY | VT_UI1)}) {
    VARIANT value = variant(type);
    const Read result = read(&value);
    EXPECT_EQ(result.hr, E_POINTER) << type;
    EXPECT_EQ(result.problem, L"NorixDir is missing.") << type;
  }
  VARIANT inner = variant(VT_BYREF | VT_I4);
  VARIANT outer = variant(VT_BYREF | VT_VARIANT);
  V_VARIANTREF(&outer) = &inner;
  EXPECT_EQ(read(&outer).hr, E_POINTER);
}

TEST(AutomationValuesTest, stringsOfOddLengthOrWithNullsOrLoneSurrogatesStayInOnePiece) {
  Bstr odd = Bstr::adopt(SysAllocStringByteLen("N\0O\0R", 5));
  EXPECT_EQ(SysStringLen(odd.get()), 2u);
  EXPECT_EQ(fromBstr(odd.get()), "NO");
  Bstr nulls(std::u16string(u"a\0b", 3));
  EXPECT_EQ(fromBstr(nulls.get()), std::string("a\0b", 3));
  Bstr surrogate(std::u16string(1, char16_t(0xD800)));
  EXPECT_EQ(fromBstr(surrogate.get()), "\xef\xbf\xbd");
  EXPECT_EQ(fromBstr(nullptr), "");
  const Read noPath = read(nullptr, nullptr);
  EXPECT_EQ(noPath.args.PathAndFileName, "");
}

TEST(AutomationValuesTest, aChangedNorixDirGoesToTheHostsVariable) {
  Bstr text(u"old");
  VARIANT reference = variant(VT_BYREF | VT_BSTR);
  V_BSTRREF(&reference) = text.address();
  VARIANT outer = variant(VT_BYREF | VT_VARIANT);
  V_VARIANTREF(&outer) = &reference;
  ASSERT_EQ(setVariantText(outer, "new \xce\xa9"), S_OK);
  EXPECT_EQ(V_VT(&outer), VT_BYREF | VT_VARIANT);
  EXPECT_EQ(fromBstr(text.get()), "new \xce\xa9");

  VARIANT number = variant(VT_I4);
  ASSERT_EQ(setVariantText(number, "x"), S_OK);
  EXPECT_EQ(V_VT(&number), VT_BSTR);
  EXPECT_EQ(fromBstr(V_BSTR(&number)), "x");
  VariantClear(&number);

  VARIANT nowhere = variant(VT_BYREF | VT_BSTR);
  EXPECT_EQ(setVariantText(nowhere, "x"), E_POINTER);
}

// Found by fuzzing (fuzz/corpus/com_arguments/weight_reference_to_nowhere): a host that leaves a
// reference with a null pointer in an exported array of weights.
TEST(AutomationValuesTest, aWeightThatPointsNowhereIsLeftAsItWas) {
  SAFEARRAY* array = nullptr;
  ASSERT_EQ(toVariantArray({0.5, 0.25, 0.25}, &array), S_OK);
  VARIANT* data = nullptr;
  ASSERT_EQ(SafeArrayAccessData(array, reinterpret_cast<void**>(&data)), S_OK);
  V_VT(&data[0]) = VT_BYREF | VT_R8;
  V_BYREF(&data[0]) = nullptr;
  V_VT(&data[2]) = VT_I2;
  V_I2(&data[2]) = 2;
  SafeArrayUnaccessData(array);
  std::vector<double> weights(3, 0.0);
  readVariantArray(array, weights);
  EXPECT_EQ(weights, (std::vector<double>{0.0, 0.25, 2.0}));
  SafeArrayDestroy(array);
}

}  // namespace
}  // namespace tnw
