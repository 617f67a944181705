#include "component/windows/com_event_relay.h"

#include "component/windows/automation_values.h"
#include "component/windows/event_connection_point.h"

namespace tnw {

namespace {

constexpr DISPID kUnloadTNWizard = 1;
constexpr DISPID kExportDirectAW = 2;
constexpr DISPID kExportTradeOffsW = 3;
constexpr DISPID kSendMasseges = 4;

VARIANT textArg(BSTR text) {
  VARIANT v;
  VariantInit(&v);
  V_VT(&v) = VT_BSTR;
  V_BSTR(&v) = text;
  return v;
}

VARIANT shortArg(std::int16_t value) {
  VARIANT v;
  VariantInit(&v);
  V_VT(&v) = VT_I2;
  V_I2(&v) = value;
  return v;
}

}  // namespace

ComEventRelay::ComEventRelay(EventConnectionPoint& point, IUnknown& owner, ObjectLife& life)
    : m_point(point), m_owner(owner), m_life(life) {}

void ComEventRelay::UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) {
  // Arguments go in reverse order.
  VARIANT args[2];
  VariantInit(&args[0]);
  V_VT(&args[0]) = VT_BOOL;
  V_BOOL(&args[0]) = WeightsDone ? VARIANT_TRUE : VARIANT_FALSE;
  args[1] = shortArg(fIndex);
  fire(kUnloadTNWizard, args, 2);
}

void ComEventRelay::ExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                                   std::vector<double>& Weights, std::vector<double>& WeightsH,
                                   std::vector<double>& WeightsL) {
  BSTR type = toBstr(TNType);
  if (!type) return;
  VARIANT leading[2] = {shortArg(RefAttID), textArg(type)};
  std::vector<double>* arrays[3] = {&Weights, &WeightsH, &WeightsL};
  fireWithArrays(kExportDirectAW, leading, 2, arrays);
  SysFreeString(type);
}

void ComEventRelay::ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                                     std::vector<double>& WeightsH, std::vector<double>& WeightsL) {
  BSTR type = toBstr(TNType);
  if (!type) return;
  VARIANT leading[1] = {textArg(type)};
  std::vector<double>* arrays[3] = {&Weights, &WeightsH, &WeightsL};
  fireWithArrays(kExportTradeOffsW, leading, 1, arrays);
  SysFreeString(type);
}

void ComEventRelay::SendMasseges(const std::string& Msg) {
  BSTR text = toBstr(Msg);
  if (!text) return;
  VARIANT args[1] = {textArg(text)};
  fire(kSendMasseges, args, 1);
  SysFreeString(text);
}

void ComEventRelay::fire(DISPID dispId, VARIANT* args, UINT count) {
  if (m_life.dying) return;
  DISPPARAMS params{args, nullptr, count, 0};
  // A host may let go of the component inside its handler; the object must outlive this call and
  // the component's own frames below it, so its deletion waits while it is busy.
  ++m_life.busy;
  m_owner.AddRef();
  m_point.fire(dispId, params);
  m_owner.Release();
  --m_life.busy;
}

void ComEventRelay::fireWithArrays(DISPID dispId, VARIANT* leading, UINT leadingCount,
                                   std::vector<double>* arrays[3]) {
  // A dialog that passes one array in two places (the trade-off dialog's middle estimates as
  // Weights and WeightsL) hands the host one array in both, as the host language would.
  int source[3] = {0, 1, 2};
  for (int i = 1; i < 3; ++i) {
    for (int k = 0; k < i; ++k) {
      if (arrays[k] == arrays[i]) {
        source[i] = source[k];
        break;
      }
    }
  }
  SAFEARRAY* safeArrays[3] = {nullptr, nullptr, nullptr};
  bool made = true;
  for (int i = 0; i < 3 && made; ++i) {
    if (source[i] == i) made = SUCCEEDED(toVariantArray(*arrays[i], &safeArrays[i]));
  }
  if (made) {
    // Reverse order: WeightsL, WeightsH, Weights, then the leading arguments, reversed already.
    VARIANT args[5];
    for (int i = 0; i < 3; ++i) {
      VariantInit(&args[i]);
      V_VT(&args[i]) = VT_BYREF | VT_ARRAY | VT_VARIANT;
      V_ARRAYREF(&args[i]) = &safeArrays[source[2 - i]];
    }
    for (UINT i = 0; i < leadingCount; ++i) args[3 + i] = leading[i];
    fire(dispId, args, 3 + leadingCount);
    for (int i = 0; i < 3; ++i) {
      if (source[i] == i) readVariantArray(safeArrays[i], *arrays[i]);
    }
  }
  for (SAFEARRAY* array : safeArrays) {
    if (array) SafeArrayDestroy(array);
  }
}

}  // namespace tnw
