#pragma once

#include "document/rescue/version_store.h"

#include <wx/dialog.h>

#include <vector>

class wxChoice;

namespace trassix {

class PlanShowcase;

/// Lists what plans held before they were saved over or deleted, to open one of these versions.
class OlderVersionsDialog : public wxDialog {
 public:
  /// There is at least one plan. The one whose file is `open` is shown first.
  OlderVersionsDialog(wxWindow* parent, std::vector<VersionStore::Plan> plans,
                      const std::filesystem::path& open);

  /// After wxID_OK.
  std::filesystem::path chosen() const;

 private:
  void list();

  std::vector<VersionStore::Plan> plans_;
  wxChoice* plan_;
  PlanShowcase* showcase_;
};

} // namespace trassix
