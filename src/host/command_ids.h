// The numbers by which tests, scripts and notes of users know commands and tools. They are fixed.
#pragma once

#include <cstdint>

namespace trassix {

/// Commands that are not the toolkit's own.
enum CommandId : int {
  kImportLayout = 1900,
  kExportLayout = 1901,
  kView3D = 2000,
  kSaveBlock = 2001,
  kUndo = 2002,
  kRedo = 2003,
  kDeleteSelection = 2004,
  kSelectAll = 2005,
  kZoomIn = 2006,
  kZoomOut = 2007,
  kZoomFit = 2008,
  kShowGrid = 2009,
  kSnap = 2010,
  kHideLabels = 2011,
  kShowRails = 2012,
  kTunnel = 2013,
  kMeasure = 2014,
  kPolygon = 2015,
  kRectangle = 2016,
  kElevation = 2017,
  kLayoutWizard = 2018,
  kBridgeWizard = 2019,
  kLayoutShape = 2020,
  kUnitsMm = 2021,
  kUnitsCm = 2022,
  kUnitsInch = 2023,
  kLevels = 2024,
  kValidate = 2025,   ///< reserved
  kProperties = 2026, ///< reserved
  kHelp = 2027,
  kLayoutWizardHelp = 2028,
  kOptions = 2029,
  kOlderVersions = 2030,
  kExportPicture = 2031,
  kFind = 2040,
  kShowPalette = 2041,
  kShowProperties = 2042,
  kOpenSample = 2043,
  kHeightProfile = 2044,
  kHelix = 2050,
  kEditHelix = 2051,
  kCut = 2060,
  kCopy = 2061,
  kPaste = 2062,
  kDuplicate = 2063,
  kZoomSelection = 2064,
  kParallelTrack = 2065,
  kMirrorLeftRight = 2066,
  kMirrorTopBottom = 2067,
  kMirrorAcross = 2068,
  kAlignLeft = 2069,
  kAlignCentre = 2070,
  kAlignRight = 2071,
  kAlignTop = 2072,
  kAlignMiddle = 2073,
  kAlignBottom = 2074,
  kDistributeAcross = 2075,
  kDistributeDown = 2076,
  kBoardCorners = 2077,
  kLevelCorners = 2078,
  kShowGrades = 2080,
  kShowHidden = 2081,
};

/// What the mouse does on the plan.
enum class ToolMode : std::int32_t { Select = 0, Measure = 3, Polygon = 4, BoardCorners = 20 };

} // namespace trassix
