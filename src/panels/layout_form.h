// What a user asks of the Layout Wizard, while its dialog is open.
#pragma once

#include "panels/length_entry.h"
#include "wizards/layout/layout_memory.h"
#include "wizards/layout/layout_task.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class Layout;

/// The fields of the dialog as texts and rows of lists, and the task that they make. What the user
/// set stays when something else changes, as far as it still can be; what he did not set follows
/// what is usual for the system.
class LayoutForm {
 public:
  /// Rows of the list of tables: the plan's own baseboard, the usual ones by `usual()`, shapes with
  /// measures, or any outline by its corners.
  enum class Table : std::uint8_t { Own, Usual, Rectangle, L, T, U, Z, Free };
  static constexpr std::size_t kMeasures = 4;

  /// Begins with what the plan was made from, if that is known, else with what is usual. The layout
  /// must outlive the form.
  LayoutForm(const Layout& layout, TrackSystem system, PieceStock stock,
             const std::optional<RememberedLayout>& remembered = std::nullopt);

  /// What the dialog says above its fields of values that were filled in; empty when nothing was.
  const std::string& greeting() const { return greeting_; }
  std::int32_t units() const { return units_; }

  static std::vector<TrackSystem> systems() { return layoutSystems(); }
  void setSystem(TrackSystem system);

  // The table.
  bool mayUseOwn() const { return tableProblem(own_).empty(); }
  /// Why the plan's baseboard cannot be used; empty when it can, or there is none.
  std::string ownProblem() const;
  Table table() const { return table_; }
  void setTable(Table table);
  std::vector<std::string> usualNames() const;
  std::size_t usual() const { return usual_; }
  void setUsual(std::size_t row); ///< also chooses `Table::Usual`
  /// Empty for a measure that the shape does not have.
  std::string measureName(std::size_t measure) const;
  const LengthEntry& measure(std::size_t measure) const { return measures_.at(measure); }
  void enterMeasure(std::size_t measure, std::string_view text);
  /// The outline as it is, for its drawing; the table becomes a free one by dragging.
  const Polygon& outline() const { return task_.outline; }
  /// Drags a corner: both edges there stay upright and level, their other corners go along. False
  /// when the outline would cross itself; then nothing changes.
  bool dragCorner(std::size_t corner, Point to);
  /// A notch at a corner, for outlines that no shape has; false when there are eight corners.
  bool addCorners(std::size_t side);
  /// Makes this the free outline.
  void setOutline(const Polygon& outline);
  /// Turn the table over left to right, or by a quarter to the right; it is a free one then. What
  /// is wished for on its sides goes along.
  void mirror();
  void turn();
  std::vector<std::string> sideNames() const;
  /// A side of the free outline by its length: its far end is dragged.
  std::size_t measuredSide() const { return measuredSide_; }
  void setMeasuredSide(std::size_t side);
  const LengthEntry& sideLength() const { return sideLength_; }
  void enterSideLength(std::string_view text);

  const LengthEntry& distance() const { return distance_; }
  void enterDistance(std::string_view text);

  // Tracks and radii.
  bool mayHaveTwoTracks() const { return trassix::mayHaveTwoTracks(task_.system); }
  int tracks() const { return task_.tracks(); }
  void setTracks(int tracks);
  const std::vector<double>& radii() const { return radii_; }
  const std::vector<double>& outerRadii() const { return outerRadii_; }
  std::vector<std::string> radiusNames() const;
  std::vector<std::string> outerRadiusNames() const;
  std::size_t radius() const;
  void setRadius(std::size_t row);
  std::size_t outerRadius() const;
  void setOuterRadius(std::size_t row);
  /// Why there cannot be two tracks, in one sentence; empty when there can.
  std::string tracksProblem() const;

  // Station and bridge; switched off where the system has no pieces for it, and then it is said.
  bool mayHaveStation() const { return hasStationKit(task_.system); }
  bool hasStation() const { return station_ && mayHaveStation(); }
  void setStation(bool on);
  std::string stationProblem() const;
  std::size_t stationSide() const { return stationWish_.side; }
  void setStationSide(std::size_t side);
  int sidings() const { return stationWish_.sidings; }
  void setSidings(int sidings);
  const LengthEntry& usableLength() const { return usableLength_; }
  void enterUsableLength(std::string_view text);
  bool mayHaveBridge() const;
  bool hasBridge() const { return bridge_ && mayHaveBridge(); }
  void setBridge(bool on);
  std::string bridgeProblem() const;
  std::size_t bridgeSide() const { return bridgeWish_.side; }
  void setBridgeSide(std::size_t side);
  BridgeForm bridgeForm() const { return bridgeWish_.form; }
  void setBridgeForm(BridgeForm form);

  void setOwnStockOnly(bool only);
  void setPreference(LayoutPreference preference);

  /// The first reason against searching, empty when it can begin.
  std::string problem() const;
  bool ready() const { return problem().empty(); }
  const LayoutTask& task() const { return task_; }

 private:
  void takeTable();
  void takeSides();
  bool takeCorner(std::size_t corner, Point to);
  void takeStation();
  void fillRadii();
  void takeTask(const LayoutTask& task);
  LengthEntry lengthEntry(double mm) const;

  const Layout& layout_;
  std::int32_t units_;
  Table table_ = Table::Usual;
  bool distanceEntered_ = false;
  bool usableEntered_ = false;
  bool sideFits_ = true;
  bool station_ = false;
  bool bridge_ = false;
  bool stationSideSet_ = false;
  bool bridgeSideSet_ = false;
  Polygon own_;
  std::string greeting_;
  LayoutTask task_;
  std::size_t usual_ = 0;
  std::vector<LengthEntry> measures_;
  std::size_t measuredSide_ = 0;
  LengthEntry sideLength_;
  LengthEntry distance_;
  std::vector<double> radii_;
  std::vector<double> outerRadii_;
  StationWish stationWish_;
  BridgeWish bridgeWish_;
  LengthEntry usableLength_;
};

} // namespace trassix
