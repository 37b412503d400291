// The Varn rules on paper, for the wall of the dispensary.

#include "SlipWriter.h"

#include "matching/Frm_HelpVarnRule.h"
#include "platform/Platform.h"

namespace vistrel {

void Frm_HelpVarnRule::Cmd_PrintRules_Click()
{
    SlipWriter page(platform().printer());
    page.bold(true).font("MS Sans Serif").size(18);
    page.text("        ");
    page.underline(true).line("VARN'S RULES");
    page.underline(false).font("Small Fonts").size(8).bold(true);
    page.line(Txt_HelpVarnRules.text());
    page.finish();
}

}  // namespace vistrel
