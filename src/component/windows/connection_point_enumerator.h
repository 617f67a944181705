#pragma once

// Windows
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

namespace tnw {

// Enumerates the component's connection points for IConnectionPointContainer, which must offer
// it: the component has exactly one, that of __TNW_MAVT.
class ConnectionPointEnumerator final : public IEnumConnectionPoints {
 public:
  // An enumerator over the single point, starting at position.
  ConnectionPointEnumerator(IConnectionPoint* point, ULONG position);
  // Releases the point.
  ~ConnectionPointEnumerator();
  ConnectionPointEnumerator(const ConnectionPointEnumerator&) = delete;
  ConnectionPointEnumerator& operator=(const ConnectionPointEnumerator&) = delete;

  // IUnknown.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IEnumConnectionPoints: hands out up to count points.
  HRESULT STDMETHODCALLTYPE Next(ULONG count, IConnectionPoint** points, ULONG* fetched) override;
  // IEnumConnectionPoints: skips count points.
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
  // IEnumConnectionPoints: back to the start.
  HRESULT STDMETHODCALLTYPE Reset() override;
  // IEnumConnectionPoints: a new enumerator at the same position.
  HRESULT STDMETHODCALLTYPE Clone(IEnumConnectionPoints** clone) override;

 private:
  LONG m_refs = 1;
  Microsoft::WRL::ComPtr<IConnectionPoint> m_point;
  ULONG m_position = 0;
};

}  // namespace tnw
