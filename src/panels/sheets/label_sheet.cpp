#include "document/plan_content.h"
#include "editing/scenery/annotations.h"
#include "panels/sheets/sheet_builder.h"
#include "texts/texts.h"

namespace trassix {

void describe(SheetBuilder& build, const Label& label) {
  build.sheet.title = tr("Label");
  build.text(tr("Text"), label.text,
             [set = setting(label, &Label::text)](Layout& layout, const std::string& text) {
               return isBlank(text) ? PropertyAnswer(false, tr("A label needs a text."))
                                    : PropertyAnswer(set(layout, text));
             });
  build.position({label.x, label.y}, setting(label, &Label::x), setting(label, &Label::y));
}

} // namespace trassix
