#include "document/open_plan.h"

#include "document/entities.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/repairs.h"
#include "document/unread_part.h"
#include "texts/texts.h"

#include <utility>

namespace trassix {

namespace {

namespace fs = std::filesystem;

/// A plan from a file as the program uses it: sound, and with texts as they were typed.
struct PlanFile {
  FileResult result;
  std::string text;
  Layout layout;
  std::string name;
  std::string unread;  ///< see `unreadPart`
  std::string repairs; ///< see `describeRepairs`
};

PlanFile readPlanFile(const fs::path& path) {
  PlanFile plan;
  plan.result.message = readTextFile(path, plan.text, &plan.result);
  if (!plan.result.failed())
    plan.result.message = readLayout(plan.text, plan.layout, plan.name);
  if (plan.result.failed())
    return plan;
  plan.unread = unreadPart(plan.text);
  plan.repairs = describeRepairs(makeSound(plan.layout));
  decodeTexts(plan.layout, plan.name);
  return plan;
}

bool sameFile(const fs::path& a, const fs::path& b) {
  std::error_code none;
  return a == b || fs::equivalent(a, b, none);
}

} // namespace

void OpenPlan::startNew(std::int32_t units) {
  layout_.clear();
  layout_.ensureLevel();
  layout_.editSettings().activeLevel = 1;
  layout_.editSettings().units = units;
  file_.clear();
  unsaved_ = false;
}

FileResult OpenPlan::load(const fs::path& path) {
  PlanFile plan = readPlanFile(path);
  if (plan.result.failed())
    return plan.result;
  layout_ = std::move(plan.layout);
  name_ = std::move(plan.name);
  file_ = plan.unread.empty() ? path : fs::path();
  unsaved_ = false;
  if (!plan.unread.empty())
    plan.result.notices.push_back(tr(
        "Not all of this file was understood (%1%): what could be read is shown, and saving will "
        "ask for a name, so that the file can stay as it is.",
        {plan.unread}));
  if (!plan.repairs.empty())
    plan.result.notices.push_back(plan.repairs);
  return plan.result;
}

FileResult OpenPlan::save() {
  FileResult result;
  result.message = saveLayout(layout_, file_, name_, &result);
  unsaved_ = unsaved_ && result.failed();
  return result;
}

FileResult OpenPlan::saveAs(const fs::path& path, std::string_view name) {
  file_ = path;
  name_ = name;
  return save();
}

void OpenPlan::fileDeleted(const fs::path& path) {
  if (path == file_)
    file_.clear();
}

ImportResult importPlan(const fs::path& source, const fs::path& target, std::string_view name) {
  const PlanFile plan = readPlanFile(source);
  ImportResult result{plan.result};
  if (!result.failed() && !isWholeLayout(plan.text))
    result.message = tr("It does not hold a whole layout.");
  if (result.failed())
    return result;
  result.step = ImportResult::Step::Copy;
  if (!sameFile(source, target))
    result.message = writeBytes(target, plan.text, &result);
  if (result.failed())
    return result;
  result.step = ImportResult::Step::Done;
  if (!plan.unread.empty()) {
    result.notices = {tr("Not all of this file was understood (%1%): it was taken over as it "
                         "is, with the name that is stored in it.",
                         {plan.unread})};
    return result;
  }
  // Where this fails the copy is there all the same, as it came.
  if (saveLayout(plan.layout, target, name, &result).empty() && !plan.repairs.empty())
    result.notices = {plan.repairs};
  return result;
}

} // namespace trassix
