#include "document/plan_content.h"
#include "support/plan.h"
#include "wizards/bridge/bridge_plan.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

TEST(BridgeWizard, Smoke) {
  Plan plan;
  plan.place("24188", {-6000, 0, 0}).extend("24188", 60);
  const std::int32_t upper = plan.layout.pieces()[31].id;
  plan.place("24188", {-100, -1000, 90}).extend("24188", 10);
  BridgeTask task;
  task.pieces = {upper, upper + 1};
  const BridgePlan bridge = planBridge(plan.layout, task);
  for (const auto& f : factsOf(bridge, 0))
    std::cout << f.name << " : " << f.text << "\n";
  EXPECT_TRUE(bridge.possible()) << (bridge.refusal ? bridge.refusal->text : "");
}

} // namespace
} // namespace trassix
