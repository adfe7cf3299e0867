// What a user wants of a helix, while its dialog is open.
#pragma once

#include "editing/helix/helix_figures.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class Layout;

/// Every entry says at once what would come of it. Of turns, height to climb and pitch those that
/// were entered last hold: with turns the pitch stays and the height follows, with a height the
/// turns, as many as leave the pitch what it was or a little more, and with a pitch, after a
/// height, the turns that come nearest to it.
class HelixForm {
 public:
  enum class Field : std::uint8_t { Climb, Pitch };
  static constexpr std::size_t kFields = 2;

  explicit HelixForm(const HelixWish& from, std::int32_t units);

  static std::vector<TrackSystem> systems();
  void setSystem(TrackSystem system);

  /// Radii and pairs of radii of the system for this many tracks.
  const std::vector<const HelixKit*>& sizes() const { return sizes_; }
  std::vector<std::string> sizeNames() const;
  std::size_t size() const { return size_; }
  void setSize(std::size_t size);
  std::size_t tracks() const { return wish_.plan.kit->tracks(); }
  /// One or two; nothing happens where the system has no radii for two.
  void setTracks(std::size_t tracks);
  bool mayHaveTwoTracks() const;

  /// 1 to 12 turns in halves, as texts.
  static std::vector<std::string> turnNames();
  std::size_t turns() const;
  void setTurns(std::size_t row);
  void enter(Field field, std::string_view text);
  const std::string& text(Field field) const { return texts_[index(field)]; }

  void setHand(HelixHand hand) { wish_.plan.hand = hand; }
  void setLeadsDown(bool down) { wish_.leadsDown = down; }

  const HelixWish& wish() const { return wish_; }
  HelixFigures figures() const { return figuresOf(wish_.plan); }
  std::vector<HelixFact> facts() const { return factsOf(wish_.plan, units_); }
  /// Why it cannot be made so, empty when it can.
  std::string problem() const;
  bool ready() const { return problem().empty(); }

 private:
  enum class Entered : std::uint8_t { Turns, Climb, Pitch };

  static std::size_t index(Field field) { return static_cast<std::size_t>(field); }
  const HelixKit& kit() const { return *wish_.plan.kit; }
  void fillSizes(std::size_t tracks);
  void take(const HelixKit& size);
  void compute();
  void show(Field field, double value);

  HelixWish wish_;
  std::int32_t units_;
  std::vector<const HelixKit*> sizes_;
  std::size_t size_ = 0;
  double turns_;
  double pitch_;              ///< as entered, or as is usual for the kit
  bool pitchEntered_ = false; ///< it stays with another kit
  double climb_ = 0;          ///< 0: turns were entered last
  Entered last_ = Entered::Turns;
  std::array<std::string, kFields> texts_;
  std::array<std::string, kFields> problems_;
};

} // namespace trassix
