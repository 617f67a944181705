#include "direct/status_lamps.h"

namespace tnw {

StatusLamps::StatusLamps() { clear(); }

void StatusLamps::clear() {
  m_state = JudgmentState::None;
  m_lamps.fill(kGrey);
  m_highlighted.fill(false);
}

void StatusLamps::show(JudgmentState state) {
  clear();
  m_state = state;
  switch (state) {
    case JudgmentState::Consistent:
      m_lamps[0] = kGreen;
      m_highlighted[0] = true;
      m_interval = kTimerStopped;
      break;
    case JudgmentState::Invalid:
      m_lamps[1] = kInvalidLit;
      m_highlighted[1] = true;
      m_interval = kTimerSlow;
      break;
    case JudgmentState::Inconsistent:
      m_lamps[2] = kInconsistentLit;
      m_highlighted[2] = true;
      m_interval = kTimerFast;
      break;
    case JudgmentState::None:
      break;
  }
}

void StatusLamps::blink(std::uint32_t& lamp, std::uint32_t lit) {
  lamp = lamp == lit ? kWhite : lit;
}

void StatusLamps::tick() {
  if (m_indicator == kRed) m_indicator = kBlue;
  switch (m_state) {
    case JudgmentState::Invalid:
      m_lamps[0] = kGrey;
      m_lamps[2] = kGrey;
      blink(m_lamps[1], kYellow);
      break;
    case JudgmentState::Consistent:
      m_lamps[1] = kGrey;
      m_lamps[2] = kGrey;
      break;
    case JudgmentState::Inconsistent:
      m_lamps[0] = kGrey;
      m_lamps[1] = kGrey;
      blink(m_lamps[2], kOrange);
      break;
    case JudgmentState::None:
      break;
  }
}

std::uint32_t StatusLamps::lampColor(int i) const {
  return i >= 0 && i < 3 ? m_lamps[static_cast<std::size_t>(i)] : kGrey;
}

bool StatusLamps::labelHighlighted(int i) const {
  return i >= 0 && i < 3 && m_highlighted[static_cast<std::size_t>(i)];
}

}  // namespace tnw
