#pragma once

// A stand-in for the few parts of the Windows API that the automation server's value
// conversions use, so that they build and run natively (the fuzz target and the native tests).
// It is on the include path of those alone; the Windows builds use the platform's own header.
// Types keep the platform's sizes: a wide character is a 16-bit UTF-16 code unit.

// Std
#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using SHORT = std::int16_t;
using USHORT = std::uint16_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using LONGLONG = std::int64_t;
using ULONGLONG = std::uint64_t;
using INT = int;
using UINT = unsigned int;
using BOOL = int;
using CHAR = char;
using FLOAT = float;
using DOUBLE = double;
using WCHAR = char16_t;
using LPSTR = char*;
using LPCSTR = const char*;
using LPWSTR = WCHAR*;
using LPCWSTR = const WCHAR*;
using HRESULT = std::int32_t;
using SCODE = std::int32_t;

// True for a success code.
#define SUCCEEDED(hr) ((hr) >= 0)
// True for a failure code.
#define FAILED(hr) ((hr) < 0)

// The status codes the conversions give or meet.
constexpr HRESULT S_OK = 0;
constexpr HRESULT S_FALSE = 1;
constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003u);
constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005u);
constexpr HRESULT E_UNEXPECTED = static_cast<HRESULT>(0x8000FFFFu);
constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000Eu);
constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057u);
constexpr HRESULT DISP_E_TYPEMISMATCH = static_cast<HRESULT>(0x80020005u);
constexpr HRESULT DISP_E_BADVARTYPE = static_cast<HRESULT>(0x80020008u);
constexpr HRESULT DISP_E_OVERFLOW = static_cast<HRESULT>(0x8002000Au);
constexpr HRESULT DISP_E_BADINDEX = static_cast<HRESULT>(0x8002000Bu);
constexpr HRESULT DISP_E_ARRAYISLOCKED = static_cast<HRESULT>(0x8002000Du);

// The code page of UTF-8, the only one the stand-in converts.
constexpr UINT CP_UTF8 = 65001;

// UTF-8 to UTF-16 as the platform does without flags: an invalid sequence becomes U+FFFD. With
// size -1 the text ends at (and includes) its null. Gives the number of code units written, or
// needed when wideSize is 0; 0 on failure (no text, an empty one, or too small a buffer).
int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int size, LPWSTR wide,
                        int wideSize);
// UTF-16 to UTF-8 likewise: a lone surrogate becomes U+FFFD. defaultChar and usedDefault must be
// null for UTF-8, as on the platform.
int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR wide, int size, LPSTR text,
                        int textSize, LPCSTR defaultChar, BOOL* usedDefault);
