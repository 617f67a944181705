#include "component/windows/connection_point_enumerator.h"

#include "component/windows/server_module.h"

// Std
#include <new>

namespace tnw {

ConnectionPointEnumerator::ConnectionPointEnumerator(IConnectionPoint* point, ULONG position)
    : m_point(point), m_position(position) {
  ServerModule::objectCreated();
}

ConnectionPointEnumerator::~ConnectionPointEnumerator() { ServerModule::objectDestroyed(); }

HRESULT STDMETHODCALLTYPE ConnectionPointEnumerator::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IEnumConnectionPoints)) {
    *object = static_cast<IEnumConnectionPoints*>(this);
    AddRef();
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

ULONG STDMETHODCALLTYPE ConnectionPointEnumerator::AddRef() {
  return ULONG(InterlockedIncrement(&m_refs));
}

ULONG STDMETHODCALLTYPE ConnectionPointEnumerator::Release() {
  const LONG refs = InterlockedDecrement(&m_refs);
  if (refs == 0) delete this;
  return ULONG(refs);
}

HRESULT STDMETHODCALLTYPE ConnectionPointEnumerator::Next(ULONG count, IConnectionPoint** points,
                                                          ULONG* fetched) {
  if (fetched) *fetched = 0;
  if (!points) return E_POINTER;
  if (count > 1 && !fetched) return E_INVALIDARG;
  ULONG given = 0;
  if (count > 0 && m_position == 0) {
    points[0] = m_point.Get();
    points[0]->AddRef();
    m_position = 1;
    given = 1;
  }
  if (fetched) *fetched = given;
  return given == count ? S_OK : S_FALSE;
}

HRESULT STDMETHODCALLTYPE ConnectionPointEnumerator::Skip(ULONG count) {
  const ULONG left = 1 - m_position;
  m_position = count >= left ? 1 : m_position + count;
  return count <= left ? S_OK : S_FALSE;
}

HRESULT STDMETHODCALLTYPE ConnectionPointEnumerator::Reset() {
  m_position = 0;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE ConnectionPointEnumerator::Clone(IEnumConnectionPoints** clone) {
  if (!clone) return E_POINTER;
  *clone = new (std::nothrow) ConnectionPointEnumerator(m_point.Get(), m_position);
  return *clone ? S_OK : E_OUTOFMEMORY;
}

}  // namespace tnw
