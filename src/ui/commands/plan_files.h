#pragma once

#include "app/services/text_file.h"
#include "document/aside_copy.h"

#include <wx/string.h>

#include <filesystem>
#include <set>

class wxWindow;

namespace trassix {

class CanvasPanel;
struct FileResult;
class Workspace;

/// The files of the open plan, with what the user is asked and told about them, and how nothing of
/// a plan gets lost.
class PlanFiles {
 public:
  PlanFiles(wxWindow& window, Workspace& workspace, CanvasPanel& canvasPanel);

  /// An empty plan in place of the present one.
  void startNew();
  /// Opens a plan file in place of the present one; false, after telling why, when it cannot be
  /// read.
  bool load(const std::filesystem::path& path);
  void save();
  void saveAs();
  /// Asks about unsaved changes if there are any; false when the user wants to stay.
  bool promptUnsaved();
  /// Keeps a copy of the plan as it is in the user's local data; plan, file and title stay.
  AsideCopy writeAside() const;

  /// Says once for each file that it could not be written in the safe way.
  void tellWay(WriteWay way, const std::filesystem::path& path);
  /// False when there is a plan of that name and the user wants to keep it.
  bool confirmReplace(const std::filesystem::path& target, const wxString& name);

 private:
  void tellSaved(const FileResult& result);
  void tellAside(const AsideCopy& copy);

  wxWindow& window_;
  Workspace& workspace_;
  CanvasPanel& canvasPanel_;
  std::set<std::filesystem::path> toldInPlace_;
};

} // namespace trassix
