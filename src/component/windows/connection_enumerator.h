#pragma once

// Windows
#include <ocidl.h>
#include <windows.h>

// Std
#include <memory>
#include <vector>

namespace tnw {

// Enumerates the sinks connected to the event connection point, for
// IConnectionPoint::EnumConnections: a snapshot taken when it was made, each entry the sink's
// IUnknown and its cookie. Clones share the snapshot.
class ConnectionEnumerator final : public IEnumConnections {
 public:
  // One connection: the sink and the cookie Advise gave it.
  struct Connection {
    DWORD cookie = 0;
    IUnknown* sink = nullptr;
  };

  // An enumerator over connections, each sink referenced for as long as the snapshot lives; null
  // when out of memory. Never throws.
  static ConnectionEnumerator* create(const std::vector<Connection>& connections) noexcept;

  // IUnknown.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IEnumConnections: hands out up to count connections, each sink with a reference added.
  HRESULT STDMETHODCALLTYPE Next(ULONG count, CONNECTDATA* connections, ULONG* fetched) override;
  // IEnumConnections: skips count connections.
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
  // IEnumConnections: back to the start.
  HRESULT STDMETHODCALLTYPE Reset() override;
  // IEnumConnections: a new enumerator over the same snapshot at the same position.
  HRESULT STDMETHODCALLTYPE Clone(IEnumConnections** clone) override;

 private:
  // The connections, their sinks referenced; released with the last enumerator sharing them.
  class Snapshot;

  ConnectionEnumerator(std::shared_ptr<const Snapshot> snapshot, std::size_t position);
  ~ConnectionEnumerator();

  LONG m_refs = 1;
  std::shared_ptr<const Snapshot> m_snapshot;
  std::size_t m_position = 0;
};

}  // namespace tnw
