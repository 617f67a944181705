// tnw_typelib_check: loads the registered type library TNWizard_MAVT 1.0 (LoadRegTypeLib) and
// prints every type with its flags, functions, DISPIDs, vtable slots, parameter types and
// directions, and for dispatch descriptions the DISPIDs that the names bind to, in a fixed text
// form that the conformance test compares with the expected table. The dual interface appears
// with both its descriptions. Exits 1 if the library is not registered.
#include "component/windows/tnwizard_mavt_h.h"

// Windows
#include <oleauto.h>
#include <windows.h>
#include <wrl/client.h>

// Std
#include <cstdio>
#include <string>
#include <vector>

using Microsoft::WRL::ComPtr;

namespace {

std::string narrow(const BSTR text) {
  std::string result;
  for (UINT i = 0; i < SysStringLen(text); ++i) result.push_back(char(text[i]));
  return result;
}

std::string guidText(REFGUID guid) {
  wchar_t wide[40] = {};
  StringFromGUID2(guid, wide, 40);
  std::string result;
  for (const wchar_t* c = wide; *c; ++c) result.push_back(char(*c));
  return result;
}

std::string hex(unsigned long value) {
  char text[16];
  std::snprintf(text, sizeof(text), "0x%08lX", value);
  return text;
}

std::string typeName(ITypeInfo* info, const TYPEDESC& desc) {
  switch (desc.vt) {
    case VT_PTR:
      return typeName(info, *desc.lptdesc) + "*";
    case VT_SAFEARRAY:
      return "SAFEARRAY(" + typeName(info, *desc.lptdesc) + ")";
    case VT_USERDEFINED: {
      ComPtr<ITypeInfo> ref;
      BSTR name = nullptr;
      if (FAILED(info->GetRefTypeInfo(desc.hreftype, ref.GetAddressOf())) ||
          FAILED(ref->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr)))
        return "?";
      std::string result = narrow(name);
      SysFreeString(name);
      return result;
    }
    case VT_VOID:
      return "void";
    case VT_HRESULT:
      return "HRESULT";
    case VT_I2:
      return "short";
    case VT_I4:
      return "long";
    case VT_I1:
      return "char";
    case VT_UI2:
      return "unsigned short";
    case VT_UI4:
      return "unsigned long";
    case VT_UINT:
      return "unsigned int";
    case VT_INT:
      return "int";
    case VT_BOOL:
      return "VARIANT_BOOL";
    case VT_BSTR:
      return "BSTR";
    case VT_VARIANT:
      return "VARIANT";
    case VT_R8:
      return "double";
    case VT_DISPATCH:
      return "IDispatch*";
    case VT_UNKNOWN:
      return "IUnknown*";
    default:
      return "vt" + std::to_string(desc.vt);
  }
}

std::string paramFlags(USHORT flags) {
  std::string result;
  if (flags & PARAMFLAG_FIN) result += "in";
  if (flags & PARAMFLAG_FOUT) result += result.empty() ? "out" : ",out";
  if (flags & PARAMFLAG_FRETVAL) result += ",retval";
  if (flags & PARAMFLAG_FOPT) result += ",optional";
  return "[" + result + "]";
}

std::string typeFlags(WORD flags) {
  std::string result;
  const std::pair<WORD, const char*> names[] = {{TYPEFLAG_FAPPOBJECT, "appobject"},
                                                {TYPEFLAG_FCANCREATE, "cancreate"},
                                                {TYPEFLAG_FHIDDEN, "hidden"},
                                                {TYPEFLAG_FDUAL, "dual"},
                                                {TYPEFLAG_FNONEXTENSIBLE, "nonextensible"},
                                                {TYPEFLAG_FOLEAUTOMATION, "oleautomation"},
                                                {TYPEFLAG_FDISPATCHABLE, "dispatchable"}};
  for (const auto& [flag, name] : names) {
    if (flags & flag) result += result.empty() ? name : std::string("|") + name;
  }
  return result.empty() ? "none" : result;
}

const char* kindName(TYPEKIND kind) {
  switch (kind) {
    case TKIND_INTERFACE:
      return "interface";
    case TKIND_DISPATCH:
      return "dispinterface";
    case TKIND_COCLASS:
      return "coclass";
    default:
      return "other";
  }
}

const char* funcKindName(FUNCKIND kind) {
  switch (kind) {
    case FUNC_DISPATCH:
      return "dispatch";
    case FUNC_PUREVIRTUAL:
      return "virtual";
    default:
      return "other";
  }
}

// How a late-bound host finds the function and its parameters by name: ITypeInfo::GetIDsOfNames
// with the names as written, as DispGetIDsOfNames does it for IDispatch::GetIDsOfNames.
std::string nameBinding(ITypeInfo* info, BSTR* names, UINT count) {
  std::vector<LPOLESTR> asked(names, names + count);
  std::vector<MEMBERID> ids(count, MEMBERID_NIL);
  const HRESULT result = info->GetIDsOfNames(asked.data(), count, ids.data());
  if (FAILED(result)) return " names unbound " + hex(ULONG(result));
  // The function's DISPID, then each parameter's position.
  std::string text = " names bind to " + hex(ULONG(ids[0]));
  for (UINT i = 1; i < count; ++i) text += " " + std::to_string(long(ids[i]));
  return text;
}

void printFunctions(ITypeInfo* info, const TYPEATTR& attr) {
  for (UINT f = 0; f < attr.cFuncs; ++f) {
    FUNCDESC* func = nullptr;
    if (FAILED(info->GetFuncDesc(f, &func))) continue;
    BSTR names[16] = {};
    UINT count = 0;
    info->GetNames(func->memid, names, 16, &count);
    std::string line = "  function " + narrow(names[0]) + " dispid " + hex(ULONG(func->memid)) +
                       " " + funcKindName(func->funckind);
    if (func->funckind != FUNC_DISPATCH)
      line += " slot " + std::to_string(func->oVft / SHORT(sizeof(void*)) - 6);
    line += std::string(" ") + (func->invkind == INVOKE_FUNC ? "method" : "property");
    line += " returns " + typeName(info, func->elemdescFunc.tdesc) + " (";
    for (SHORT p = 0; p < func->cParams; ++p) {
      const ELEMDESC& param = func->lprgelemdescParam[p];
      if (p > 0) line += ", ";
      line += typeName(info, param.tdesc) + " " +
              (UINT(p + 1) < count ? narrow(names[p + 1]) : std::string("?")) + " " +
              paramFlags(param.paramdesc.wParamFlags);
    }
    line += ")";
    if (attr.typekind == TKIND_DISPATCH) line += nameBinding(info, names, count);
    std::printf("%s\n", line.c_str());
    for (UINT n = 0; n < count; ++n) SysFreeString(names[n]);
    info->ReleaseFuncDesc(func);
  }
}

void printImplementedTypes(ITypeInfo* info, const TYPEATTR& attr) {
  for (UINT i = 0; i < attr.cImplTypes; ++i) {
    HREFTYPE ref = 0;
    ComPtr<ITypeInfo> implemented;
    BSTR name = nullptr;
    INT flags = 0;
    if (FAILED(info->GetRefTypeOfImplType(i, &ref)) ||
        FAILED(info->GetRefTypeInfo(ref, implemented.GetAddressOf())) ||
        FAILED(implemented->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr)))
      continue;
    if (attr.typekind == TKIND_COCLASS) info->GetImplTypeFlags(i, &flags);
    std::string text = "  implements " + narrow(name);
    if (flags & IMPLTYPEFLAG_FDEFAULT) text += " default";
    if (flags & IMPLTYPEFLAG_FSOURCE) text += " source";
    std::printf("%s\n", text.c_str());
    SysFreeString(name);
  }
}

void printDescription(ITypeInfo* info) {
  TYPEATTR* attr = nullptr;
  if (FAILED(info->GetTypeAttr(&attr))) return;
  BSTR name = nullptr;
  info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  std::printf("type %s %s %s flags %s version %u.%u\n", narrow(name).c_str(),
              kindName(attr->typekind), guidText(attr->guid).c_str(),
              typeFlags(attr->wTypeFlags).c_str(), attr->wMajorVerNum, attr->wMinorVerNum);
  SysFreeString(name);
  printImplementedTypes(info, *attr);
  printFunctions(info, *attr);
  info->ReleaseTypeAttr(attr);
}

// A dual interface is described twice: first as late-bound hosts see it (its dispatch
// description, which the library hands out), then its vtable half (GetRefTypeOfImplType(-1)),
// which carries the slots.
void printType(ITypeInfo* info) {
  printDescription(info);
  TYPEATTR* attr = nullptr;
  if (FAILED(info->GetTypeAttr(&attr))) return;
  const bool dual = attr->typekind == TKIND_DISPATCH && (attr->wTypeFlags & TYPEFLAG_FDUAL);
  info->ReleaseTypeAttr(attr);
  if (!dual) return;
  HREFTYPE ref = 0;
  ComPtr<ITypeInfo> vtable;
  if (FAILED(info->GetRefTypeOfImplType(UINT(-1), &ref)) ||
      FAILED(info->GetRefTypeInfo(ref, vtable.GetAddressOf()))) {
    std::printf("  no vtable description\n");
    return;
  }
  printDescription(vtable.Get());
}

}  // namespace

int main() {
  if (FAILED(CoInitialize(nullptr))) return 3;
  ComPtr<ITypeLib> lib;
  HRESULT hr = LoadRegTypeLib(LIBID_TNWizard_MAVT, 1, 0, 0, lib.GetAddressOf());
  if (FAILED(hr)) {
    std::printf("type library not registered (%s)\n", hex(ULONG(hr)).c_str());
    return 1;
  }
  TLIBATTR* libAttr = nullptr;
  lib->GetLibAttr(&libAttr);
  BSTR name = nullptr;
  lib->GetDocumentation(-1, &name, nullptr, nullptr, nullptr);
  const SYSKIND expected = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
  std::printf("library %s %s version %u.%u lcid %lu syskind %s\n", narrow(name).c_str(),
              guidText(libAttr->guid).c_str(), libAttr->wMajorVerNum, libAttr->wMinorVerNum,
              static_cast<unsigned long>(libAttr->lcid),
              libAttr->syskind == expected ? "native" : "foreign");
  SysFreeString(name);
  lib->ReleaseTLibAttr(libAttr);
  const UINT count = lib->GetTypeInfoCount();
  for (UINT i = 0; i < count; ++i) {
    ComPtr<ITypeInfo> info;
    if (SUCCEEDED(lib->GetTypeInfo(i, info.GetAddressOf()))) printType(info.Get());
  }
  lib.Reset();
  CoUninitialize();
  return 0;
}
