#include "catalog/system_kits.h"

#include "catalog/track_catalog.h"

namespace trassix {

BridgeKit bridgeKit(TrackSystem system) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  switch (system) {
  case TrackSystem::CTrack:
    return {catalog.find("24064"), catalog.find("24188"), catalog.find("74620"),
            catalog.find("74636")};
  case TrackSystem::TrixCTrack:
    return {catalog.find("62064"), catalog.find("62188"), catalog.find("74620T"),
            catalog.find("74636T")};
  default:
    return {};
  }
}

StationKit stationKit(TrackSystem system) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  switch (system) {
  case TrackSystem::CTrack:
    return {catalog.find("24611"), catalog.find("24612"), catalog.find("24224"), nullptr};
  case TrackSystem::TrixCTrack:
    return {catalog.find("62611"), catalog.find("62612"), catalog.find("62224"), nullptr};
  case TrackSystem::KTrack:
    return {catalog.find("2262"), catalog.find("2263"), catalog.find("2232"), nullptr};
  case TrackSystem::MTrack:
    return {catalog.find("5117"), catalog.find("5119"), catalog.find("5100"), nullptr};
  case TrackSystem::ZTrack:
    return {catalog.find("8562"), catalog.find("8563"), catalog.find("8591"), catalog.find("8500")};
  default:
    return {};
  }
}

} // namespace trassix
