#pragma once

// Windows
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

// Std
#include <vector>

namespace tnw {

// The connection point of the event interface __TNW_MAVT. It lives inside the component object
// and counts its references on it. Hosts advise a sink that takes the events through
// IDispatch::Invoke with the DISPIDs of the type library.
class EventConnectionPoint : public IConnectionPoint {
 public:
  // A connection point of container, which holds it and outlives it.
  explicit EventConnectionPoint(IConnectionPointContainer& container);
  // Lets go of every sink.
  ~EventConnectionPoint();
  EventConnectionPoint(const EventConnectionPoint&) = delete;
  EventConnectionPoint& operator=(const EventConnectionPoint&) = delete;

  // IUnknown, with the references counted on the container.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IConnectionPoint: the event interface's IID.
  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override;
  // IConnectionPoint: the component object.
  HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** cpc) override;
  // IConnectionPoint: connects a sink that implements __TNW_MAVT or IDispatch.
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
  // IConnectionPoint: disconnects the sink of cookie.
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
  // IConnectionPoint: the sinks connected now with their cookies, in the order they connected.
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) override;

  // Raises event dispId with params on every sink connected now, in the order they connected.
  // Sinks that fail are skipped; a sink may connect or disconnect sinks meanwhile.
  void fire(DISPID dispId, DISPPARAMS& params);
  // How many sinks are connected.
  std::size_t sinkCount() const { return m_sinks.size(); }

 private:
  struct Sink {
    DWORD cookie = 0;
    Microsoft::WRL::ComPtr<IDispatch> dispatch;
  };

  IConnectionPointContainer& m_container;
  std::vector<Sink> m_sinks;
  DWORD m_nextCookie = 1;
};

}  // namespace tnw
