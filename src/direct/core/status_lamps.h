#pragma once

#include "direct/core/judgment_state.h"

// Std
#include <array>
#include <cstdint>

namespace tnw::direct {

// The three status lamps of the judgment page ("Consistent", "Invalid", "Inconsistent") with
// their labels lblAlarm, the blinking indicator of the reference choice, and Timer1 that
// blinks them. Colours are in the platform's 0x00BBGGRR form.
class StatusLamps {
 public:
  static constexpr std::uint32_t kGrey = 0x808080;
  static constexpr std::uint32_t kGreen = 0x00FF00;
  static constexpr std::uint32_t kInvalidLit = 0x000808;
  static constexpr std::uint32_t kInconsistentLit = 0x004080;
  static constexpr std::uint32_t kYellow = 65535;
  static constexpr std::uint32_t kOrange = 33023;
  static constexpr std::uint32_t kWhite = 0xFFFFFF;
  static constexpr std::uint32_t kRed = 0x0000FF;   // RGB 255, 0, 0
  static constexpr std::uint32_t kBlue = 0xFF0000;  // RGB 0, 0, 255
  static constexpr std::uint32_t kBlack = 0x000000;
  // Timer intervals in milliseconds: stopped, the reference choice and invalid, inconsistent.
  static constexpr int kTimerStopped = 0;
  static constexpr int kTimerSlow = 300;
  static constexpr int kTimerFast = 100;

  // The captions of the lamps' labels, index 0 to 2.
  static constexpr std::array<const char*, 3> kLabels{"Consistent", "Invalid", "Inconsistent"};

  // All lamps grey, labels plain, status 0, indicator red, timer stopped.
  StatusLamps();

  // Lights the lamp of a checked state and sets Timer1's interval for it.
  void show(JudgmentState state);
  // Clears the state (status 0): every lamp grey, every label plain; the timer is left alone.
  void clear();
  // One Timer1 tick: the indicator turns from red to blue, and the lit lamp of a faulty
  // judgment blinks.
  void tick();
  // Sets Timer1's interval (0 stops it).
  void setTimerInterval(int ms) { m_interval = ms; }
  // Sets the indicator's fill colour.
  void setIndicatorColor(std::uint32_t color) { m_indicator = color; }

  // The status kept by the page.
  JudgmentState state() const { return m_state; }
  // The colour of lamp i (0 to 2).
  std::uint32_t lampColor(int i) const;
  // Whether label i is lit: drawn bold, in the colour that reads best on its lamp.
  bool labelHighlighted(int i) const;
  // The colour of label i's text on its lamp as it is now, black or white, whichever contrasts
  // more with the lamp's colour: the state stays readable in every phase of a blink.
  std::uint32_t labelTextColor(int i) const;

  // The contrast ratio of two colours, (L1 + 0.05) / (L2 + 0.05) of their relative luminances,
  // from 1 (equal) to 21 (black and white).
  static double contrastRatio(std::uint32_t a, std::uint32_t b);
  // Black or white, whichever contrasts more with the background colour.
  static std::uint32_t readableOn(std::uint32_t background);
  // Timer1's interval in milliseconds; 0 when stopped.
  int timerInterval() const { return m_interval; }
  // The indicator's fill colour.
  std::uint32_t indicatorColor() const { return m_indicator; }

 private:
  static void blink(std::uint32_t& lamp, std::uint32_t lit);

  JudgmentState m_state = JudgmentState::None;
  std::array<std::uint32_t, 3> m_lamps{};
  std::array<bool, 3> m_highlighted{};
  int m_interval = kTimerStopped;
  std::uint32_t m_indicator = kRed;
};

}  // namespace tnw::direct
