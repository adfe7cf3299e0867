#include "editing/tunnels/tunnel_figures.h"

#include "catalog/scenery_catalog.h"
#include "editing/arranging/parallel_pieces.h"

#include <array>

namespace trassix {

namespace {

struct GaugeFigures {
  double width = 0;
  double height = 0;
  double heightWithWire = 0;
  double shortest = 0;
};

GaugeFigures figuresOf(TrackSystem system) {
  switch (gaugeOf(system)) {
  case Gauge::Z:
    return {24, 25, 30, 40};
  case Gauge::Gauge1:
    return {157, 159, 183, 280};
  case Gauge::H0:
    break;
  }
  return {58, 62, 72, 100};
}

constexpr double kSameRadius = 0.5; // mm

struct Lean {
  double radius = 0; ///< from this one on
  double addition = 0;
};

std::span<const Lean> leansOf(TrackSystem system) {
  static constexpr std::array<Lean, 7> kH0{
      {{0, 8}, {400, 7}, {450, 6}, {500, 5}, {600, 4}, {800, 3}, {1000, 2}}};
  static constexpr std::array<Lean, 2> kZ{{{0, 2}, {226, 1}}};
  static constexpr std::array<Lean, 4> kGauge1{{{0, 31}, {1000, 20}, {1200, 16}, {2000, 7}}};
  switch (gaugeOf(system)) {
  case Gauge::Z:
    return kZ;
  case Gauge::Gauge1:
    return kGauge1;
  case Gauge::H0:
    break;
  }
  return kH0;
}

} // namespace

std::string_view portalItem(TunnelOpening opening, std::size_t tracks) {
  if (tracks == 1)
    return opening == TunnelOpening::OldStone ? "tun.oldstone" : "tun.single";
  return tracks == 2 && opening == TunnelOpening::WithWire ? "tun.double" : "";
}

OpeningSize openingOf(TrackSystem system, TunnelOpening opening, std::size_t tracks) {
  const GaugeFigures figures = figuresOf(system);
  return {figures.width + (tracks == 2 ? parallelSpacing(system) : 0),
          opening == TunnelOpening::WithWire ? figures.heightWithWire : figures.height};
}

double sideAddition(TrackSystem system, double radius) {
  double addition = 0;
  if (radius > 0)
    for (const Lean& lean : leansOf(system))
      if (radius > lean.radius - kSameRadius)
        addition = lean.addition;
  return addition;
}

double shortestTunnel(TrackSystem system) {
  return figuresOf(system).shortest;
}

std::span<const double> doubleTrackSpacings(TrackSystem system) {
  static constexpr std::array kC{77.5, 64.3};
  static constexpr std::array kK{64.6};
  static constexpr std::array kM{77.4, 74.0};
  static constexpr std::array kZ{25.0};
  static constexpr std::array kGauge1{125.0, 156.0};
  switch (system) {
  case TrackSystem::CTrack:
  case TrackSystem::TrixCTrack:
    return kC;
  case TrackSystem::KTrack:
    return kK;
  case TrackSystem::MTrack:
    return kM;
  case TrackSystem::ZTrack:
    return kZ;
  case TrackSystem::Gauge1:
    return kGauge1;
  default:
    return {};
  }
}

} // namespace trassix
