#include "component/windows/event_connection_point.h"

#include "component/windows/com_boundary.h"
#include "component/windows/connection_enumerator.h"
#include "component/windows/tnwizard_mavt_h.h"

// Windows
#include <olectl.h>

// Std
#include <algorithm>

namespace tnw {

EventConnectionPoint::EventConnectionPoint(IConnectionPointContainer& container)
    : m_container(container) {}

EventConnectionPoint::~EventConnectionPoint() = default;

HRESULT STDMETHODCALLTYPE EventConnectionPoint::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IConnectionPoint)) {
    *object = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

ULONG STDMETHODCALLTYPE EventConnectionPoint::AddRef() { return m_container.AddRef(); }

ULONG STDMETHODCALLTYPE EventConnectionPoint::Release() { return m_container.Release(); }

HRESULT STDMETHODCALLTYPE EventConnectionPoint::GetConnectionInterface(IID* iid) {
  if (!iid) return E_POINTER;
  *iid = DIID___TNW_MAVT;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE
EventConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** cpc) {
  if (!cpc) return E_POINTER;
  *cpc = &m_container;
  m_container.AddRef();
  return S_OK;
}

HRESULT STDMETHODCALLTYPE EventConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
  if (cookie) *cookie = 0;
  if (!sink || !cookie) return E_POINTER;
  Microsoft::WRL::ComPtr<IDispatch> dispatch;
  // Script hosts and VB answer for the event interface itself; a plain IDispatch sink works too
  // because events only ever arrive through Invoke.
  if (FAILED(sink->QueryInterface(DIID___TNW_MAVT,
                                  reinterpret_cast<void**>(dispatch.GetAddressOf()))) &&
      FAILED(
          sink->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(dispatch.GetAddressOf()))))
    return CONNECT_E_CANNOTCONNECT;
  const HRESULT hr = comBoundary([this, &dispatch] {
    m_sinks.push_back({m_nextCookie, dispatch});
    return S_OK;
  });
  if (FAILED(hr)) return hr;
  *cookie = m_nextCookie++;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE EventConnectionPoint::Unadvise(DWORD cookie) {
  auto found = std::find_if(m_sinks.begin(), m_sinks.end(),
                            [cookie](const Sink& sink) { return sink.cookie == cookie; });
  if (found == m_sinks.end()) return CONNECT_E_NOCONNECTION;
  // Moved out first: releasing the sink may call back into Advise or Unadvise.
  Microsoft::WRL::ComPtr<IDispatch> released = std::move(found->dispatch);
  m_sinks.erase(found);
  return S_OK;
}

HRESULT STDMETHODCALLTYPE EventConnectionPoint::EnumConnections(IEnumConnections** connections) {
  if (!connections) return E_POINTER;
  *connections = nullptr;
  return comBoundary([this, connections] {
    std::vector<ConnectionEnumerator::Connection> list;
    list.reserve(m_sinks.size());
    for (const Sink& sink : m_sinks) list.push_back({sink.cookie, sink.dispatch.Get()});
    *connections = ConnectionEnumerator::create(list);
    return *connections ? S_OK : E_OUTOFMEMORY;
  });
}

void EventConnectionPoint::fire(DISPID dispId, DISPPARAMS& params) {
  std::vector<Sink> sinks;
  try {
    sinks = m_sinks;
  } catch (...) {
    return;
  }
  for (const Sink& sink : sinks) {
    // A sink disconnected by an earlier one's handler gets nothing more.
    const bool connected = std::any_of(m_sinks.begin(), m_sinks.end(),
                                       [&sink](const Sink& s) { return s.cookie == sink.cookie; });
    if (!connected) continue;
    EXCEPINFO exception{};
    UINT argError = 0;
    sink.dispatch->Invoke(dispId, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr,
                          &exception, &argError);
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
  }
}

}  // namespace tnw
