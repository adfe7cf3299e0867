#pragma once

#include <span>

namespace trassix {

enum class HelpTopic {
  Plan,
  MouseAndKeys,
  Autofill,
  LevelsAndBaseboard,
  Files,
  LayoutWizard,
  BridgeWizard
};

/// One page of the help. Its lines are headings ("# Saving"), keys with their meaning, separated by
/// a bar ("Ctrl+S|Save"), or paragraphs. To be translated where they are shown.
struct HelpPage {
  HelpTopic topic;
  const char* title;
  std::span<const char* const> lines;
  /// Of the plans that are shown above it, the first ones of those in `plans/`; captions to be
  /// translated too.
  std::span<const char* const> captions = {};
};

std::span<const HelpPage> helpPages();

} // namespace trassix
