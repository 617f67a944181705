// tnw_client_check DIR: drives the component from C++ as an early-bound host does: creates it by
// ProgID, calls the methods through the vtable of _TNW_MAVT, receives the events on its own sink
// through the connection point, reads and changes the arrays of both export events, and checks
// the class information, the connection points and their connections, the error information that
// IDispatch::Invoke returns, aggregation, LockServer and DllCanUnloadNow.
// Prints one line per fact; the conformance test compares them with the expected output. The
// model is DIR\three_cars.mod; the first object plays DIR\client_direct.json, the second
// DIR\client_tradeoffs.json.
#include "component/windows/tnwizard_mavt_h.h"

// Windows
#include <olectl.h>
#include <windows.h>
#include <wrl/client.h>

// Std
#include <cstdio>
#include <string>

using Microsoft::WRL::ComPtr;

namespace {

std::string narrow(const wchar_t* text, UINT length) {
  std::string result;
  for (UINT i = 0; i < length; ++i) result.push_back(char(text[i]));
  return result;
}

std::string hr(HRESULT value) {
  char text[16];
  std::snprintf(text, sizeof(text), "0x%08lX", static_cast<unsigned long>(value));
  return text;
}

void print(const std::string& line) {
  std::printf("%s\n", line.c_str());
  std::fflush(stdout);
}

std::string arrayText(SAFEARRAY* array) {
  LONG lower = 0;
  LONG upper = -1;
  SafeArrayGetLBound(array, 1, &lower);
  SafeArrayGetUBound(array, 1, &upper);
  std::string text;
  for (LONG i = lower; i <= upper; ++i) {
    VARIANT element;
    VariantInit(&element);
    SafeArrayGetElement(array, &i, &element);
    char number[32];
    std::snprintf(number, sizeof(number), " %.6f", V_R8(&element));
    text += number;
    VariantClear(&element);
  }
  return text;
}

// Sets element index of a one-dimensional array of Variants to a Double.
void setElement(SAFEARRAY* array, LONG index, double value) {
  VARIANT changed;
  VariantInit(&changed);
  V_VT(&changed) = VT_R8;
  V_R8(&changed) = value;
  SafeArrayPutElement(array, &index, &changed);
}

// The host's event sink: prints each event with its arguments and changes the exported arrays,
// which the dialog's trace then shows.
class EventSink final : public IDispatch {
 public:
  bool unloaded = false;
  ComPtr<_TNW_MAVT> wizard;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) ||
        IsEqualIID(iid, DIID___TNW_MAVT)) {
      *object = static_cast<IDispatch*>(this);
      AddRef();
      return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ULONG(++m_refs); }
  ULONG STDMETHODCALLTYPE Release() override { return ULONG(--m_refs); }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  // Arguments arrive in reverse order.
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT*,
                                   EXCEPINFO*, UINT*) override {
    VARIANT* a = params->rgvarg;
    switch (id) {
      case 1:
        print("event UnloadTNWizard fIndex " + std::to_string(V_I2(&a[1])) + " WeightsDone " +
              std::to_string(V_BOOL(&a[0])));
        unloaded = true;
        wizard->UnloadTNWizard();
        break;
      case 2: {
        print("event ExportDirectAW " + narrow(V_BSTR(&a[4]), SysStringLen(V_BSTR(&a[4]))) +
              " RefAttID " + std::to_string(V_I2(&a[3])));
        print("  Weights " + arrayText(*V_ARRAYREF(&a[2])));
        print("  WeightsH" + arrayText(*V_ARRAYREF(&a[1])));
        print("  WeightsL" + arrayText(*V_ARRAYREF(&a[0])));
        SAFEARRAY* weights = *V_ARRAYREF(&a[2]);
        LONG last = 0;
        SafeArrayGetUBound(weights, 1, &last);
        setElement(weights, last, 0.75);
        print("  host set Weights(last) to 0.75");
        break;
      }
      case 3: {
        print("event ExportTradeOffsW " + narrow(V_BSTR(&a[3]), SysStringLen(V_BSTR(&a[3]))));
        print("  Weights " + arrayText(*V_ARRAYREF(&a[2])));
        print("  WeightsH" + arrayText(*V_ARRAYREF(&a[1])));
        print("  WeightsL" + arrayText(*V_ARRAYREF(&a[0])));
        // The dialog passes its middle estimates as both Weights and WeightsL.
        print(std::string("  Weights and WeightsL are one array: ") +
              (V_ARRAYREF(&a[2]) == V_ARRAYREF(&a[0]) ? "yes" : "no"));
        SAFEARRAY* weightsH = *V_ARRAYREF(&a[1]);
        LONG last = 0;
        SafeArrayGetUBound(weightsH, 1, &last);
        setElement(*V_ARRAYREF(&a[2]), 0, 0.125);
        setElement(weightsH, last, 0.875);
        print("  host set Weights(0) to 0.125 and WeightsH(last) to 0.875");
        print("  WeightsL now" + arrayText(*V_ARRAYREF(&a[0])));
        break;
      }
      case 4:
        print("event SendMasseges " + narrow(V_BSTR(&a[0]), SysStringLen(V_BSTR(&a[0]))));
        break;
      default:
        print("event " + std::to_string(id));
    }
    return S_OK;
  }

 private:
  LONG m_refs = 1;
};

HRESULT canUnloadNow() {
  using Entry = HRESULT(STDAPICALLTYPE*)();
  HMODULE module = GetModuleHandleW(L"TNWizard_MAVT_Test.dll");
  if (!module) return E_FAIL;
  auto entry =
      reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(module, "DllCanUnloadNow")));
  return entry ? entry() : E_FAIL;
}

void checkClassInformation(_TNW_MAVT* wizard) {
  ComPtr<IProvideClassInfo2> classInfo;
  wizard->QueryInterface(IID_IProvideClassInfo2,
                         reinterpret_cast<void**>(classInfo.GetAddressOf()));
  GUID source{};
  classInfo->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source);
  print(std::string("default source is __TNW_MAVT: ") +
        (IsEqualGUID(source, DIID___TNW_MAVT) ? "yes" : "no"));
  ComPtr<ITypeInfo> coclass;
  classInfo->GetClassInfo(coclass.GetAddressOf());
  BSTR name = nullptr;
  coclass->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  print("class information names " + narrow(name, SysStringLen(name)));
  SysFreeString(name);

  ComPtr<IConnectionPointContainer> container;
  wizard->QueryInterface(IID_IConnectionPointContainer,
                         reinterpret_cast<void**>(container.GetAddressOf()));
  ComPtr<IEnumConnectionPoints> points;
  container->EnumConnectionPoints(points.GetAddressOf());
  IConnectionPoint* point[2] = {};
  ULONG fetched = 0;
  points->Next(2, point, &fetched);
  IID iid{};
  if (fetched > 0) point[0]->GetConnectionInterface(&iid);
  print("connection points: " + std::to_string(fetched) +
        ", the first for __TNW_MAVT: " + (IsEqualIID(iid, DIID___TNW_MAVT) ? "yes" : "no"));
  for (ULONG i = 0; i < fetched; ++i) point[i]->Release();
  ComPtr<IConnectionPoint> other;
  print("FindConnectionPoint(IDispatch): " +
        hr(container->FindConnectionPoint(IID_IDispatch, other.GetAddressOf())));
}

void checkErrorInformation(_TNW_MAVT* wizard) {
  LPOLESTR name = const_cast<LPOLESTR>(L"GetCurFileData");
  DISPID id = 0;
  wizard->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
  VARIANT args[3];
  for (VARIANT& arg : args) VariantInit(&arg);
  V_VT(&args[0]) = VT_BSTR;
  V_BSTR(&args[0]) = SysAllocString(L"C:\\nowhere.mod");
  V_VT(&args[1]) = VT_I2;
  V_I2(&args[1]) = 1;
  V_VT(&args[2]) = VT_NULL;
  DISPPARAMS params{args, nullptr, 3, 0};
  EXCEPINFO exception{};
  UINT argError = 0;
  const HRESULT result = wizard->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params,
                                        nullptr, &exception, &argError);
  print("Invoke GetCurFileData(Null) returns " + hr(result) + ", scode " + hr(exception.scode) +
        ", source " + narrow(exception.bstrSource, SysStringLen(exception.bstrSource)) +
        ", description " +
        narrow(exception.bstrDescription, SysStringLen(exception.bstrDescription)));
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);
  VariantClear(&args[0]);
}

// Lists the point's connections through EnumConnections: how many, and whether the first is
// sink with cookie.
void checkConnections(IConnectionPoint* point, IUnknown* sink, DWORD cookie) {
  ComPtr<IEnumConnections> connections;
  const HRESULT result = point->EnumConnections(connections.GetAddressOf());
  if (FAILED(result)) {
    print("EnumConnections: " + hr(result));
    return;
  }
  CONNECTDATA data[2] = {};
  ULONG fetched = 0;
  const HRESULT next = connections->Next(2, data, &fetched);
  std::string line =
      "EnumConnections: " + std::to_string(fetched) + " connection(s), Next " + hr(next);
  if (fetched > 0) {
    ComPtr<IUnknown> identity;
    data[0].pUnk->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(identity.GetAddressOf()));
    line += std::string(", the first is the sink: ") + (identity.Get() == sink ? "yes" : "no") +
            ", with its cookie: " + (data[0].dwCookie == cookie ? "yes" : "no");
  }
  print(line);
  for (ULONG i = 0; i < fetched; ++i) data[i].pUnk->Release();
  if (fetched == 0) return;
  const HRESULT skipAtEnd = connections->Skip(1);
  const HRESULT reset = connections->Reset();
  const HRESULT skip = connections->Skip(1);
  print("  Skip(1) at the end: " + hr(skipAtEnd) + ", Reset: " + hr(reset) +
        ", Skip(1) from the start: " + hr(skip));
  connections->Reset();
  ComPtr<IEnumConnections> clone;
  connections->Clone(clone.GetAddressOf());
  CONNECTDATA again{};
  fetched = 0;
  clone->Next(1, &again, &fetched);
  print("  a clone hands out the same cookie: " +
        std::string(fetched == 1 && again.dwCookie == cookie ? "yes" : "no"));
  if (fetched == 1) again.pUnk->Release();
}

void runWizard(_TNW_MAVT* wizard, const std::wstring& dir) {
  EventSink sink;
  sink.wizard = wizard;
  ComPtr<IConnectionPointContainer> container;
  wizard->QueryInterface(IID_IConnectionPointContainer,
                         reinterpret_cast<void**>(container.GetAddressOf()));
  ComPtr<IConnectionPoint> point;
  container->FindConnectionPoint(DIID___TNW_MAVT, point.GetAddressOf());
  DWORD cookie = 0;
  print("Advise: " + hr(point->Advise(&sink, &cookie)));
  checkConnections(point.Get(), static_cast<IDispatch*>(&sink), cookie);

  VARIANT norixDir;
  VariantInit(&norixDir);
  V_VT(&norixDir) = VT_BSTR;
  V_BSTR(&norixDir) = SysAllocString(dir.c_str());
  BSTR path = SysAllocString((dir + L"\\three_cars.mod").c_str());
  print("GetCurFileData: " + hr(wizard->GetCurFileData(&norixDir, 4, path)));
  SysFreeString(path);
  VariantClear(&norixDir);
  print("ShowTNWizard: " + hr(wizard->ShowTNWizard()));
  // The dialogs act from the message loop, as a user would.
  for (int i = 0; i < 3000 && !sink.unloaded; ++i) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    if (!sink.unloaded) Sleep(10);
  }
  print("Unadvise: " + hr(point->Unadvise(cookie)));
  print("Unadvise again: " + hr(point->Unadvise(cookie)));
  checkConnections(point.Get(), static_cast<IDispatch*>(&sink), cookie);
  sink.wizard.Reset();
}

// Creates an object by ProgID that plays the scenario DIR\scenario.
ComPtr<_TNW_MAVT> createWizard(const std::wstring& dir, const std::wstring& scenario) {
  // Each object reads its scenario when it is made.
  SetEnvironmentVariableW(L"TNW_SCRIPTED_SCENARIO", (dir + L"\\" + scenario).c_str());
  CLSID clsid;
  print("CLSIDFromProgID: " + hr(CLSIDFromProgID(L"TNWizard_MAVT.TNW_MAVT", &clsid)));
  ComPtr<_TNW_MAVT> wizard;
  print("CoCreateInstance: " +
        hr(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID__TNW_MAVT,
                            reinterpret_cast<void**>(wizard.GetAddressOf()))));
  return wizard;
}

void checkFactory() {
  using Entry = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  HMODULE module = GetModuleHandleW(L"TNWizard_MAVT_Test.dll");
  auto entry =
      reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
  ComPtr<IClassFactory> factory;
  print(
      "DllGetClassObject(other class): " +
      hr(entry(IID_IUnknown, IID_IClassFactory, reinterpret_cast<void**>(factory.GetAddressOf()))));
  entry(CLSID_TNW_MAVT, IID_IClassFactory, reinterpret_cast<void**>(factory.GetAddressOf()));
  ComPtr<IUnknown> object;
  EventSink outer;
  print("CreateInstance with an outer object: " +
        hr(factory->CreateInstance(&outer, IID_IUnknown,
                                   reinterpret_cast<void**>(object.GetAddressOf()))));
  factory->LockServer(TRUE);
  print("DllCanUnloadNow while locked: " + hr(canUnloadNow()));
  factory->LockServer(FALSE);
  print("DllCanUnloadNow after unlocking: " + hr(canUnloadNow()));
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc != 2) return 2;
  if (FAILED(CoInitialize(nullptr))) return 3;
  const std::wstring dir = argv[1];
  {
    ComPtr<_TNW_MAVT> wizard = createWizard(dir, L"client_direct.json");
    if (!wizard) return 1;
    checkClassInformation(wizard.Get());
    checkErrorInformation(wizard.Get());
    print("DllCanUnloadNow with an object alive: " + hr(canUnloadNow()));
    runWizard(wizard.Get(), dir);
  }
  print("DllCanUnloadNow after the last release: " + hr(canUnloadNow()));
  {
    ComPtr<_TNW_MAVT> wizard = createWizard(dir, L"client_tradeoffs.json");
    if (!wizard) return 1;
    runWizard(wizard.Get(), dir);
  }
  print("DllCanUnloadNow after the last release: " + hr(canUnloadNow()));
  checkFactory();
  CoUninitialize();
  return 0;
}
