#include "document/rescue/rescue_schedule.h"

#include <algorithm>

namespace trassix {

namespace {

using namespace std::chrono_literals;

constexpr RescueSchedule::Duration kFirst = 2s;
constexpr RescueSchedule::Duration kTick = 250ms;
constexpr int kTicksInFirst = 8;

} // namespace

RescueSchedule::RescueSchedule(Duration interval)
    : interval_(interval), tick_(std::min(kTick, interval / kTicksInFirst)) {}

void RescueSchedule::changed(Time now) {
  if (!changed_)
    changed_ = now;
}

bool RescueSchedule::due(Time now, Time lastInput, bool buttonDown) const {
  if (!changed_ || buttonDown)
    return false;
  // Two ticks before the end, for the one until it is asked and the writing itself.
  const Duration first = std::min(kFirst, interval_) - 2 * tick_;
  const Time latest =
      copied_ ? std::max(*changed_, *copied_ + interval_ - 2 * tick_) : *changed_ + first;
  const bool pause = now - lastInput >= tick_;
  return now >= latest || (pause && now >= latest - first / 2);
}

void RescueSchedule::copied(Time now) {
  changed_.reset();
  copied_ = now;
}

void RescueSchedule::settled() {
  changed_.reset();
  copied_.reset();
}

} // namespace trassix
