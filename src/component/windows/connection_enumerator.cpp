#include "component/windows/connection_enumerator.h"

#include "component/windows/server_module.h"

// Std
#include <algorithm>
#include <new>
#include <utility>

namespace tnw {

class ConnectionEnumerator::Snapshot {
 public:
  explicit Snapshot(std::vector<Connection> connections) : m_connections(std::move(connections)) {
    for (const Connection& connection : m_connections) connection.sink->AddRef();
  }
  ~Snapshot() {
    for (const Connection& connection : m_connections) connection.sink->Release();
  }
  Snapshot(const Snapshot&) = delete;
  Snapshot& operator=(const Snapshot&) = delete;

  const std::vector<Connection>& connections() const { return m_connections; }

 private:
  std::vector<Connection> m_connections;
};

ConnectionEnumerator* ConnectionEnumerator::create(
    const std::vector<Connection>& connections) noexcept {
  try {
    auto snapshot = std::make_shared<const Snapshot>(connections);
    return new ConnectionEnumerator(std::move(snapshot), 0);
  } catch (...) {
    return nullptr;
  }
}

ConnectionEnumerator::ConnectionEnumerator(std::shared_ptr<const Snapshot> snapshot,
                                           std::size_t position)
    : m_snapshot(std::move(snapshot)), m_position(position) {
  ServerModule::objectCreated();
}

ConnectionEnumerator::~ConnectionEnumerator() { ServerModule::objectDestroyed(); }

HRESULT STDMETHODCALLTYPE ConnectionEnumerator::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IEnumConnections)) {
    *object = static_cast<IEnumConnections*>(this);
    AddRef();
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

ULONG STDMETHODCALLTYPE ConnectionEnumerator::AddRef() {
  return ULONG(InterlockedIncrement(&m_refs));
}

ULONG STDMETHODCALLTYPE ConnectionEnumerator::Release() {
  const LONG refs = InterlockedDecrement(&m_refs);
  if (refs == 0) delete this;
  return ULONG(refs);
}

HRESULT STDMETHODCALLTYPE ConnectionEnumerator::Next(ULONG count, CONNECTDATA* connections,
                                                     ULONG* fetched) {
  if (fetched) *fetched = 0;
  if (!connections) return E_POINTER;
  if (count > 1 && !fetched) return E_INVALIDARG;
  const std::vector<Connection>& all = m_snapshot->connections();
  ULONG given = 0;
  for (; given < count && m_position < all.size(); ++given, ++m_position) {
    connections[given].pUnk = all[m_position].sink;
    connections[given].pUnk->AddRef();
    connections[given].dwCookie = all[m_position].cookie;
  }
  if (fetched) *fetched = given;
  return given == count ? S_OK : S_FALSE;
}

HRESULT STDMETHODCALLTYPE ConnectionEnumerator::Skip(ULONG count) {
  const std::size_t left = m_snapshot->connections().size() - m_position;
  m_position += std::min<std::size_t>(count, left);
  return count <= left ? S_OK : S_FALSE;
}

HRESULT STDMETHODCALLTYPE ConnectionEnumerator::Reset() {
  m_position = 0;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE ConnectionEnumerator::Clone(IEnumConnections** clone) {
  if (!clone) return E_POINTER;
  *clone = new (std::nothrow) ConnectionEnumerator(m_snapshot, m_position);
  return *clone ? S_OK : E_OUTOFMEMORY;
}

}  // namespace tnw
