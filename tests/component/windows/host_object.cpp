#include "host_object.h"

#include "script_host.h"

namespace tnw::testing {

namespace {

enum Method { Argument, CanUnloadNow };

long dllCanUnloadNow(const std::wstring& dll) {
  HMODULE module = GetModuleHandleW(dll.c_str());
  if (!module) return -1;
  using Entry = HRESULT(STDAPICALLTYPE*)();
  auto entry =
      reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(module, "DllCanUnloadNow")));
  if (!entry) return -2;
  return long(entry());
}

}  // namespace

HostObject::HostObject(ScriptHost& host)
    : DispatchObject({L"Argument", L"DllCanUnloadNow"}), m_host(host) {}

HRESULT HostObject::call(int index, const std::vector<VARIANT*>& args, VARIANT* result) {
  if (args.size() != 1) return DISP_E_BADPARAMCOUNT;
  if (index == Argument) {
    VARIANT number;
    VariantInit(&number);
    if (FAILED(VariantChangeType(&number, args[0], 0, VT_I4))) return DISP_E_TYPEMISMATCH;
    if (result) {
      V_VT(result) = VT_BSTR;
      V_BSTR(result) = SysAllocString(m_host.argument(std::size_t(V_I4(&number))).c_str());
    }
    return S_OK;
  }
  if (index == CanUnloadNow) {
    if (result) {
      V_VT(result) = VT_I4;
      V_I4(result) = dllCanUnloadNow(variantText(args[0]));
    }
    return S_OK;
  }
  return DISP_E_MEMBERNOTFOUND;
}

}  // namespace tnw::testing
