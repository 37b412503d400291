#include "Frm_HelpVarnRule.h"

namespace vistrel {

Frm_HelpVarnRule::Frm_HelpVarnRule(Station& station) : Screen(station, "Frm_HelpVarnRule")
{
    design();
    Cmd_Exit.onClick = [this] { Cmd_Exit_Click(); };
    Cmd_PrintRules.onClick = [this] { Cmd_PrintRules_Click(); };
    op("Cmd_PrintRules_Click", Cmd_PrintRules.onClick);
    onCloseBox = [this] { Cmd_Exit_Click(); };
    var("Showing", Showing);
    op("Cmd_Exit_Click", [this] { Cmd_Exit_Click(); });
}

const std::vector<std::string>& Frm_HelpVarnRule::RuleLines()
{
    // One line of the clinician's text per entry, trailing blanks and all.
    static const std::vector<std::string> lines = {
        "-- It is OK to have Myopia under corrected or over ",
        "corrected by -0.50/+0.50.   TRANSLATION:  A minus ",
        "sphere prescription can be more or less minus by .50.  ",
        "For example if the patient's prescription is -2.00 ",
        "sphere, you may be able to use -2.50 or -1.50.              ",
        "-- Never over correct cylinder. To avoid this set (NO ",
        "Overcylinder) on main window.  TRANSLATION:   The ",
        "cylinder for the glasses cannot be larger numerically ",
        "than the cylinder for the patient; i.e. If the patient ",
        "cylinder is -1.00 then -.75 is OK but -1.25 is not.",
        "-- You can decrease cylinder up to -0.75 and be just ",
        "as effective most of the time. Setting (NO ",
        "Overcylinder) on the main window will give glasses ",
        "which have less cylinder than the prescription. ",
        "TRANSLATION: If the cylinder is -2.00 you can ",
        "decrease the cylinder to -1.25 most of the time.            ",
        "-- Never over correct hyperopia.  To avoid this set the ",
        "(NO Overplus) checkmark on main window.  ",
        "TRANSLATION: When a patient has + sphere do not ",
        "dispense glasses which have MORE + sphere, i.e. if ",
        "the patient prescription is 2.00 do not dispense a 2.50 ",
        "but 1.50 will likely work quite well.",
        "-- It is OK to under correct hyperopia up to one ",
        "diopter.  TRANSLATION:  When a patient has + ",
        "sphere it is OK to dispense a smaller value by up to ",
        "1.00; i.e., if the patient prescription is 4.00, it is OK to ",
        "dispense 3.00.",
        "-- Never over minus Miopic patients 35 years of age or ",
        "older.  If the patient is less than 35 you can over ",
        "minus them some  (.50) but not 35 years or older.      ",
        "(See Rule 1).                   ",
        "Compliments:  Dr Dessa Varn,OD     Calverley, Qd.",
    };
    return lines;
}

void Frm_HelpVarnRule::Cmd_Exit_Click()
{
    Showing = false;
    hide();
}

void Frm_HelpVarnRule::design()
{
    setCaption("Help with Varn's Rule.                                                                      V6.x-x");
    setGeometry(0, 0, 8400, 9000);
    Lbl_Heading.setCaption("VARN'S RULES");
    Lbl_Heading.setFont(Font{"MS Sans Serif", 18, true});
    Lbl_Heading.setGeometry(2400, 120, 3600, 480);
    std::string text;
    for (const std::string& line : RuleLines())
        text += line + "\r\n";
    text.resize(text.size() - 2);
    Txt_HelpVarnRules.setMultiLine(true);
    Txt_HelpVarnRules.setLocked(true);
    Txt_HelpVarnRules.setText(text);
    Txt_HelpVarnRules.setGeometry(240, 720, 7800, 7320);
    Cmd_PrintRules.setCaption("&Print Rules");
    Cmd_PrintRules.setGeometry(4800, 8160, 1500, 420);
    Cmd_Exit.setCaption("&Close");
    Cmd_Exit.setGeometry(6480, 8160, 1500, 420);
}

}  // namespace vistrel
