#include "direct/core/status_lamps.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw::direct {
namespace {

// The relative luminance of an sRGB channel value 0-255, linearised.
double linear(std::uint32_t channel) {
  const double c = static_cast<double>(channel & 0xFFu) / 255.0;
  return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

// The relative luminance of a colour in 0x00BBGGRR form.
double luminance(std::uint32_t bgr) {
  return 0.2126 * linear(bgr) + 0.7152 * linear(bgr >> 8) + 0.0722 * linear(bgr >> 16);
}

}  // namespace

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

std::uint32_t StatusLamps::labelTextColor(int i) const { return readableOn(lampColor(i)); }

double StatusLamps::contrastRatio(std::uint32_t a, std::uint32_t b) {
  const double la = luminance(a);
  const double lb = luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

std::uint32_t StatusLamps::readableOn(std::uint32_t background) {
  return contrastRatio(background, kBlack) >= contrastRatio(background, kWhite) ? kBlack : kWhite;
}

}  // namespace tnw::direct
