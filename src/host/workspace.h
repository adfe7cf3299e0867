#pragma once

#include "geometry/box.h"
#include "geometry/point.h"
#include "host/editor_switches.h"

#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

class Clipboard;
class Layout;
class OpenPlan;
class PlanPreview;
class Questions;
class Workspace;

/// A part of the window that follows what happens to the open plan, for as long as it lives.
class PlanObserver {
 public:
  explicit PlanObserver(Workspace& workspace);
  virtual ~PlanObserver();
  PlanObserver(const PlanObserver&) = delete;
  PlanObserver& operator=(const PlanObserver&) = delete;

  /// The document was changed: done, undone or redone.
  virtual void planChanged() {}
  virtual void selectionChanged() {}
  /// Another plan took the place of the one before; its file may follow.
  virtual void planReplaced() {}
  /// The plan's file, its name, or whether all of it is saved.
  virtual void fileChanged() {}
  virtual void unitsChanged() {}
  virtual void switchesChanged() {}
  /// Only the picture is out of date.
  virtual void pictureChanged() {}
  /// A part of the plan (mm) is to be seen.
  virtual void shown(const Box& /*part*/, bool /*inTheMiddle*/) {}
  /// Another piece is pointed at, or none.
  virtual void pointedChanged() {}
  /// What the mouse and keys do now.
  virtual void hintChanged(const std::string& /*hint*/) {}
  /// Also when the plan moved below the pointer.
  virtual void pointerMoved(Point /*world*/) {}

 private:
  Workspace& workspace_;
};

/// The open plan as all parts of the window share it: canvas, tools, panels, dialogs and commands.
/// Every change of the document goes through `changed`, so that title, tally and pictures can never
/// disagree.
class Workspace {
 public:
  /// Of which nothing is owned.
  Workspace(OpenPlan& plan, Questions& questions, Clipboard& clipboard)
      : plan_(plan), questions_(questions), clipboard_(clipboard) {}

  OpenPlan& plan() { return plan_; }
  Layout& layout();
  const Layout& layout() const;
  std::int32_t units() const; ///< in which the plan shows lengths
  const EditorSwitches& switches() const { return switches_; }
  Questions& questions() { return questions_; }
  Clipboard& clipboard() { return clipboard_; }
  /// What is shown over the plan without being on it; null for nothing.
  const PlanPreview* preview() const { return preview_; }

  /// Marks the plan unsaved and has everything follow.
  void changed();
  void selectionChanged();
  void selectNothing();
  void planReplaced();
  void fileChanged();
  void setUnits(std::int32_t units);
  void setSwitches(const EditorSwitches& switches);
  /// Track in tunnels shows again when any that is selected does not.
  void showSelected();
  void setToolMode(ToolMode mode, const PolygonUse& use = {});
  void repaint();
  /// Brings a part of the plan (mm) into view; one that is in view stays where it is, unless it has
  /// to be in the middle.
  void show(const Box& part, bool inTheMiddle = false);
  /// The mouse is over a piece (id, -1 for none), in whatever picture of the plan.
  void point(std::int32_t piece);
  std::int32_t pointed() const { return pointed_; }
  void setHint(const std::string& hint);
  void setPointer(Point world);

 private:
  friend PlanObserver;
  friend PlanPreview;
  template <class... Parameters, class... Arguments>
  void tell(void (PlanObserver::*what)(Parameters...), const Arguments&... arguments);

  OpenPlan& plan_;
  Questions& questions_;
  Clipboard& clipboard_;
  EditorSwitches switches_;
  const PlanPreview* preview_ = nullptr;
  std::int32_t pointed_ = -1;
  std::vector<PlanObserver*> observers_;
};

} // namespace trassix
