#pragma once

class wxWindow;

namespace trassix {

class ToolSite;

/// Asks for a bridge for the selected track, of which there is some, and builds it.
void runBridgeWizard(wxWindow& parent, ToolSite& site);

} // namespace trassix
