#pragma once

// A stand-in for the OLE Automation API the automation server's value conversions use: BSTRs
// with their length prefix, Variants, and one-dimensional safe arrays. Like windows.h beside it,
// it exists only for the native fuzz target and tests; the Windows builds use the platform's.
// What it does not model (dispatch objects, currency and date texts, locales) it refuses.

#include "windows.h"

using OLECHAR = WCHAR;
using LPOLESTR = OLECHAR*;
using BSTR = OLECHAR*;
using VARTYPE = unsigned short;
using VARIANT_BOOL = short;
using DATE = double;

constexpr VARIANT_BOOL VARIANT_TRUE = -1;
constexpr VARIANT_BOOL VARIANT_FALSE = 0;
// VariantChangeType: Booleans become "True" and "False".
constexpr USHORT VARIANT_ALPHABOOL = 0x02;

// The Variant types, as numbered by the platform.
enum VARENUM {
  VT_EMPTY = 0,
  VT_NULL = 1,
  VT_I2 = 2,
  VT_I4 = 3,
  VT_R4 = 4,
  VT_R8 = 5,
  VT_CY = 6,
  VT_DATE = 7,
  VT_BSTR = 8,
  VT_DISPATCH = 9,
  VT_ERROR = 10,
  VT_BOOL = 11,
  VT_VARIANT = 12,
  VT_UNKNOWN = 13,
  VT_DECIMAL = 14,
  VT_I1 = 16,
  VT_UI1 = 17,
  VT_UI2 = 18,
  VT_UI4 = 19,
  VT_I8 = 20,
  VT_UI8 = 21,
  VT_INT = 22,
  VT_UINT = 23,
  VT_RECORD = 36,
  VT_ARRAY = 0x2000,
  VT_BYREF = 0x4000,
  VT_TYPEMASK = 0x0fff
};

struct SAFEARRAY;

// A record's data and its description, which the stand-in never looks into.
struct BRECORD {
  void* pvRecord;
  void* pRecInfo;
};

// A Variant: its type and one value (or, with VT_BYREF, a pointer to one).
struct VARIANT {
  VARTYPE vt;
  WORD wReserved1;
  WORD wReserved2;
  WORD wReserved3;
  union {
    LONGLONG llVal;
    LONG lVal;
    BYTE bVal;
    SHORT iVal;
    FLOAT fltVal;
    DOUBLE dblVal;
    VARIANT_BOOL boolVal;
    SCODE scode;
    LONGLONG cyVal;
    DATE date;
    BSTR bstrVal;
    void* punkVal;
    void* pdispVal;
    SAFEARRAY* parray;
    CHAR cVal;
    USHORT uiVal;
    ULONG ulVal;
    ULONGLONG ullVal;
    INT intVal;
    UINT uintVal;
    BSTR* pbstrVal;
    SAFEARRAY** pparray;
    VARIANT* pvarVal;
    void* byref;
    BRECORD brecVal;
  };
};
using VARIANTARG = VARIANT;

#define V_VT(X) ((X)->vt)
#define V_ISBYREF(X) (V_VT(X) & VT_BYREF)
#define V_ISARRAY(X) (V_VT(X) & VT_ARRAY)
#define V_BYREF(X) ((X)->byref)
#define V_I2(X) ((X)->iVal)
#define V_I4(X) ((X)->lVal)
#define V_R8(X) ((X)->dblVal)
#define V_BOOL(X) ((X)->boolVal)
#define V_BSTR(X) ((X)->bstrVal)
#define V_BSTRREF(X) ((X)->pbstrVal)
#define V_ARRAY(X) ((X)->parray)
#define V_VARIANTREF(X) ((X)->pvarVal)

// One dimension's bounds.
struct SAFEARRAYBOUND {
  ULONG cElements;
  LONG lLbound;
};

// A one-dimensional safe array (the only kind the stand-in makes).
struct SAFEARRAY {
  USHORT cDims;
  USHORT fFeatures;
  ULONG cbElements;
  ULONG cLocks;
  void* pvData;
  SAFEARRAYBOUND rgsabound[1];
  // The element type, which the platform keeps in front of the descriptor.
  VARTYPE vt;
};

// A BSTR of size code units copied from text (left zeroed when text is null); null without memory.
BSTR SysAllocStringLen(const OLECHAR* text, UINT size);
// A BSTR of size bytes copied from bytes (zeroed when null): its length may be odd.
BSTR SysAllocStringByteLen(LPCSTR bytes, UINT size);
// Frees a BSTR (null is allowed).
void SysFreeString(BSTR text);
// The length of a BSTR in code units, from its prefix (0 for null).
UINT SysStringLen(BSTR text);
// The length of a BSTR in bytes, from its prefix (0 for null).
UINT SysStringByteLen(BSTR text);

// Makes value VT_EMPTY without looking at what it held.
void VariantInit(VARIANTARG* value);
// Frees what value owns and makes it VT_EMPTY; DISP_E_BADVARTYPE for an unknown type.
HRESULT VariantClear(VARIANTARG* value);
// A deep copy of source into target (cleared first).
HRESULT VariantCopy(VARIANTARG* target, const VARIANTARG* source);
// Converts source (by reference or not) to type into target; the stand-in converts to VT_BSTR
// and VT_R8 only. Like the platform, it follows a reference without checking it.
HRESULT VariantChangeType(VARIANTARG* target, const VARIANTARG* source, USHORT flags, VARTYPE type);

// A one-dimensional array of count elements of type from index lower; null for an unsupported type.
SAFEARRAY* SafeArrayCreateVector(VARTYPE type, LONG lower, ULONG count);
// A deep copy of source in *target.
HRESULT SafeArrayCopy(SAFEARRAY* source, SAFEARRAY** target);
// Frees array and what its elements own.
HRESULT SafeArrayDestroy(SAFEARRAY* array);
// Locks array and gives its elements.
HRESULT SafeArrayAccessData(SAFEARRAY* array, void** data);
// Undoes one SafeArrayAccessData.
HRESULT SafeArrayUnaccessData(SAFEARRAY* array);
// The number of dimensions (0 for null).
UINT SafeArrayGetDim(SAFEARRAY* array);
// The element type.
HRESULT SafeArrayGetVartype(SAFEARRAY* array, VARTYPE* type);
// The lower bound of dimension (only 1).
HRESULT SafeArrayGetLBound(SAFEARRAY* array, UINT dimension, LONG* bound);
// The upper bound of dimension (only 1).
HRESULT SafeArrayGetUBound(SAFEARRAY* array, UINT dimension, LONG* bound);
// A copy of the element at *index into element (a Variant, BSTR or number, as the type says).
HRESULT SafeArrayGetElement(SAFEARRAY* array, LONG* index, void* element);
