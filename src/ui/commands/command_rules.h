// Why commands cannot be used: rules that several of them share.
#pragma once

namespace trassix {

class ToolSite;

const char* nothingSelected(const ToolSite& site);
const char* noTrackSelected(const ToolSite& site);

} // namespace trassix
