#pragma once

#include "core/screen/Screen.h"

#include <string>
#include <vector>

namespace vistrel {

// The Varn rules as the clinician wrote them.
class Frm_HelpVarnRule : public Screen {
public:
    explicit Frm_HelpVarnRule(Station& station);

    Label Lbl_Heading{*this, "Lbl_Heading"};
    TextBox Txt_HelpVarnRules{*this, "Txt_HelpVarnRules"};
    CommandButton Cmd_PrintRules{*this, "Cmd_PrintRules"};
    CommandButton Cmd_Exit{*this, "Cmd_Exit"};

    bool Showing = false;

    static const std::vector<std::string>& RuleLines();
    void Cmd_Exit_Click();
    // Prints the rules on the slip's printer (src/reports).
    void Cmd_PrintRules_Click();

private:
    void design();
};

}  // namespace vistrel
