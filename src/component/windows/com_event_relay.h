#pragma once

#include "component/core/tnw_mavt_events.h"

// Windows
#include <oaidl.h>
#include <windows.h>

// Std
#include <cstdint>
#include <string>
#include <vector>

namespace tnw {

class EventConnectionPoint;

// Whether the component object is in a call that must finish before it may be deleted, and
// whether it is already on its way out.
struct ObjectLife {
  // Calls into the component on the stack (host methods and events being raised).
  int busy = 0;
  // The last reference is gone and the deletion is queued: nothing more goes to the host.
  bool dying = false;
};

// Turns the component's four events into calls of the host's __TNW_MAVT sinks: texts as BSTRs,
// 16-bit integers as VT_I2, flags as VARIANT_BOOL, and the weight arrays as SAFEARRAY(VARIANT)
// by reference. Whatever a host leaves in an array when its handler returns is written back into
// the dialog's own array, so a host that changes the arrays changes the dialog's.
class ComEventRelay : public TnwMavtEvents {
 public:
  // A relay raising events on point, holding owner alive (and life busy) while a host handles one.
  ComEventRelay(EventConnectionPoint& point, IUnknown& owner, ObjectLife& life);

  // Raises UnloadTNWizard (DISPID 1).
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override;
  // Raises ExportDirectAW (DISPID 2).
  void ExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                      std::vector<double>& Weights, std::vector<double>& WeightsH,
                      std::vector<double>& WeightsL) override;
  // Raises ExportTradeOffsW (DISPID 3).
  void ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                        std::vector<double>& WeightsH, std::vector<double>& WeightsL) override;
  // Raises SendMasseges (DISPID 4).
  void SendMasseges(const std::string& Msg) override;

 private:
  void fire(DISPID dispId, VARIANT* args, UINT count);
  void fireWithArrays(DISPID dispId, VARIANT* leading, UINT leadingCount,
                      std::vector<double>* arrays[3]);

  EventConnectionPoint& m_point;
  IUnknown& m_owner;
  ObjectLife& m_life;
};

}  // namespace tnw
