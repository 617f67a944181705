#include "wscript_object.h"

#include "script_host.h"

namespace tnw::testing {

namespace {

enum Method { Echo, CreateObject, DisconnectObject, Sleep };

}  // namespace

WScriptObject::WScriptObject(ScriptHost& host)
    : DispatchObject({L"Echo", L"CreateObject", L"DisconnectObject", L"Sleep"}), m_host(host) {}

HRESULT WScriptObject::call(int index, const std::vector<VARIANT*>& args, VARIANT* result) {
  switch (index) {
    case Echo: {
      std::wstring line;
      for (std::size_t i = 0; i < args.size(); ++i) {
        if (i > 0) line += L" ";
        line += variantText(args[i]);
      }
      m_host.echo(line);
      return S_OK;
    }
    case CreateObject: {
      if (args.empty()) return DISP_E_BADPARAMCOUNT;
      VARIANT temp;
      VariantInit(&temp);
      return m_host.createObject(variantText(args[0]), args.size() > 1 ? variantText(args[1]) : L"",
                                 result ? result : &temp);
    }
    case DisconnectObject: {
      if (args.size() != 1) return DISP_E_BADPARAMCOUNT;
      VARIANT object;
      VariantInit(&object);
      if (FAILED(VariantCopyInd(&object, args[0])) || V_VT(&object) != VT_DISPATCH)
        return DISP_E_TYPEMISMATCH;
      m_host.disconnectObject(V_DISPATCH(&object));
      VariantClear(&object);
      return S_OK;
    }
    case Sleep: {
      if (args.size() != 1) return DISP_E_BADPARAMCOUNT;
      VARIANT ms;
      VariantInit(&ms);
      if (FAILED(VariantChangeType(&ms, args[0], 0, VT_UI4))) return DISP_E_TYPEMISMATCH;
      m_host.sleep(V_UI4(&ms));
      return S_OK;
    }
    default:
      return DISP_E_MEMBERNOTFOUND;
  }
}

}  // namespace tnw::testing
