// The advice after a search: which rules speak, in which order, with which
// words on the screen and on the slip, and the flags they leave.

#include "FakePlatform.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace vistrel {
namespace {

using test::FakePlatform;
using test::TempDir;
using test::writeFile;

struct Person {
    const char* sphereLeft = "";
    const char* cylinderLeft = "";
    const char* axisLeft = "";
    const char* sphereRight = "";
    const char* cylinderRight = "";
    const char* axisRight = "";
    const char* age = "";
    std::int16_t found = 10;
    bool also = false;      // "Match Add ALSO" on
    bool chartAdd = false;  // the Add of the age's row of the chart set
};

struct Advised {
    std::string caption;
    std::map<int, std::string> lines;  // the slots that hold text
    bool needed = false;
    bool optional = false;
    bool flash = false;
};

class Recommendation : public testing::Test {
protected:
    void SetUp() override
    {
        writeFile(platform.inventoryFile(), "1,-1.00,0,0,0,-1.00,0,0,0,0,0,0,0,0,62,0,\"\",,\r\n");
        writeFile(platform.optionsFile(),
            "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE,0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,"
            "2.50,100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,"
            "Default,1,32000\r\n");
        station.start();
    }

    Advised advise(const Person& person)
    {
        Frm_Vistrel& v = station.vistrel();
        v.Chk_PlusBifocals.setValue(person.also ? 1 : 0);
        v.Txt_Age.setText(person.age);
        v.Txt_Sphere_Left.setText(person.sphereLeft);
        v.Txt_Cylinder_Left.setText(person.cylinderLeft);
        v.Txt_Axis_Left.setText(person.axisLeft);
        v.Txt_Sphere_Right.setText(person.sphereRight);
        v.Txt_Cylinder_Right.setText(person.cylinderRight);
        v.Txt_Axis_Right.setText(person.axisRight);
        v.Txt_LeftAdd.setText("");
        v.Txt_RightAdd.setText("");
        v.ChosenAddText.clear();
        if (person.chartAdd)
            v.Cmd_SetAdd_Click();
        v.FoundCount = person.found;
        v.WizardFlash = false;
        v.Make_Recommendation();
        Advised a{v.Lbl_Recommendation.caption(), {}, v.GlassesNeeded, v.GlassesOptional, v.WizardFlash};
        for (size_t slot = 0; slot < v.AdviceLines.size(); ++slot)
            if (!v.AdviceLines[slot].empty())
                a.lines[static_cast<int>(slot)] = v.AdviceLines[slot];
        return a;
    }

    TempDir dir;
    FakePlatform platform{dir.path()};
    Station station{platform};
};

using Lines = std::map<int, std::string>;

TEST_F(Recommendation, NearPerfectVisionReplacesTheAgeWarning)
{
    // A plano person of 50 with the chart's Add of 2.00: readers alone.
    Advised a = advise({.sphereLeft = "0", .sphereRight = "0", .age = "50", .chartAdd = true});
    EXPECT_EQ(a.caption, "Near Perfect Distance Vision.  No distance glasses but +2 readers. ");
    EXPECT_EQ(a.lines, (Lines{{1, "- Near Perfect Distance Vision."}, {2, "- No distance glasses but +2 readers."}}));
    EXPECT_FALSE(a.needed);

    // No age, left -0.75 and right +0.25: the warning is raised, then the
    // low levels (3 and 0) overwrite it in the caption and in its slot.
    a = advise({.sphereLeft = "-0.75", .sphereRight = "+0.25"});
    EXPECT_EQ(a.caption, "Near Perfect Distance Vision.  No glasses needed for this young person. ");
    EXPECT_EQ(a.lines,
        (Lines{{2, "- Near Perfect Distance Vision."}, {3, "- No glasses needed for this young person."}}));
    EXPECT_EQ(station.vistrel().Txt_Age.backColor(), colors::Yellow);
}

TEST_F(Recommendation, AgeWarningAndYoungEyes)
{
    Advised a = advise({.sphereLeft = "-1.00", .sphereRight = "-1.00"});
    EXPECT_EQ(a.caption,
        "ENTER AGE for accurate glasses list.  Check Acuity on E-Chart. May be OK. Dilation may not be complete. "
        " Nearsighted both eyes. Glasses optional with this young person.");
    EXPECT_EQ(a.lines, (Lines{{2, "ENTER AGE for accurate glasses list."}, {3, "- Check Acuity on E-Chart. May be OK."},
                           {4, "- Eye muscles may not be totally relaxed."}, {5, "- Dilation may not be complete."},
                           {6, "- Nearsighted both eyes."}, {7, "- Glasses optional with this young person."}}));
    EXPECT_TRUE(a.needed);
    EXPECT_TRUE(a.optional);

    // A left sphere of a half or less raises no warning, whatever the right.
    a = advise({.sphereLeft = "-0.50", .sphereRight = "-3.00"});
    EXPECT_EQ(a.caption.find("ENTER AGE"), std::string::npos);
}

TEST_F(Recommendation, TolerableAstigmatismDependsOnAge)
{
    const Person child{.sphereLeft = "0", .cylinderLeft = "-1.50", .axisLeft = "90", .sphereRight = "0",
        .cylinderRight = "-1.50", .axisRight = "90", .age = "10"};
    Advised a = advise(child);
    EXPECT_EQ(a.caption, "Tolerable Astigmatism.  No Glasses Needed.");
    EXPECT_EQ(a.lines, (Lines{{2, "- Tolerable Astigmatism.  No Glasses Needed."},
                           {3, "- Tolerate: -1.00(CYL) and below(Adults) and"},
                           {4, "-    -1.50(CYL) and below (Child 10 & below)"}}));
    EXPECT_FALSE(a.needed);

    Person older = child;
    older.age = "11";
    a = advise(older);
    EXPECT_EQ(a.caption, " Nearsighted both eyes. Glasses needed.");
    EXPECT_EQ(a.lines, (Lines{{2, "- Nearsighted both eyes."}, {3, "- Glasses are needed."}}));
    EXPECT_TRUE(a.needed);
}

TEST_F(Recommendation, VeryUnequalEyesGuardTheDivisionOnScreen)
{
    Advised a = advise({.sphereLeft = "-6.00", .sphereRight = "0", .age = "40"});
    EXPECT_EQ(a.caption,
        " Ask if left eye blind. May be lazy eye. Use left for reading. Right for distance. Correct right eye with "
        "+1 readers. Nearsighted both eyes. Glasses needed.");
    EXPECT_EQ(a.lines, (Lines{{2, "- Ask if left eye blind. May be lazy eye."},
                           {3, "- Match right eye and mark left eye blind."},
                           {5, "- Use left for reading. Right for distance."}, {6, "- Correct right eye with +1 readers."},
                           {7, "- Nearsighted both eyes."}, {8, "- Glasses are needed."},
                           {9, "-    And cylinder is low to moderate <= 1.00."}}));
    EXPECT_EQ(station.vistrel().Txt_Right_AMP.text(), ".001");
}

TEST_F(Recommendation, SquintingAndTheWizardCall)
{
    const Person squinter{.sphereLeft = "-1.00", .cylinderLeft = "-1.00", .axisLeft = "180", .sphereRight = "-1.00",
        .cylinderRight = "-1.00", .axisRight = "180", .age = "45"};
    Advised a = advise(squinter);
    EXPECT_EQ(a.caption, " Squinting may improve vision. Nearsighted both eyes. Glasses needed. But no glasses may suffice.");
    EXPECT_EQ(a.lines, (Lines{{2, "- Squinting may improve vision when"}, {3, "  minus Sphere & Cylinder are .75 or"},
                           {4, "  more & are within +- .50 of each other."}, {5, "  Axis must be at 180 +- 5 degrees."},
                           {6, "- Nearsighted both eyes."}, {7, "- Glasses are needed."},
                           {8, "- But no glasses may suffice."}, {9, "-  Because sphere minus and <= 1.00."},
                           {10, "-    And cylinder is low to moderate <= 1.00."}}));
    EXPECT_FALSE(a.flash);

    // Few matches for an older person with "Match Add ALSO": the bifocal
    // words first, then the wizard, and the button flashes.
    Person few = squinter;
    few.found = 2;
    few.also = true;
    a = advise(few);
    EXPECT_EQ(a.caption,
        " Few or no BiFocal matches made. Add may be wrong on any listed. Use Wizard or uncheck ALSO for more matches."
        " Squinting may improve vision. Nearsighted both eyes. Glasses needed. But no glasses may suffice.");
    EXPECT_EQ(a.lines.at(4), "- Use Wizard/uncheck ALSO for more matches.");
    EXPECT_TRUE(a.flash);
    EXPECT_EQ(station.vistrel().WizardFlashCounter, 3);

    // An axis of 170 is no squint.
    Person tilted = squinter;
    tilted.axisRight = "170";
    EXPECT_EQ(advise(tilted).caption.find("Squinting"), std::string::npos);
}

TEST_F(Recommendation, NothingEnteredAndReentry)
{
    advise({.sphereLeft = "-1.00", .sphereRight = "-1.00", .age = "45"});
    const std::vector<std::string> kept = station.vistrel().AdviceLines;
    Advised a = advise({.sphereLeft = "", .sphereRight = "", .age = "45"});
    EXPECT_FALSE(station.vistrel().Lbl_Recommendation.visible());
    EXPECT_EQ(a.caption, "");
    EXPECT_EQ(station.vistrel().AdviceLines, kept) << "the slip keeps the last person's lines";
    EXPECT_FALSE(a.needed);

    // A call during a pass returns at once.
    Frm_Vistrel& v = station.vistrel();
    v.Lbl_Recommendation.setCaption("left as it was");
    v.RecommendationBusy = true;
    v.Make_Recommendation();
    EXPECT_EQ(v.Lbl_Recommendation.caption(), "left as it was");
    v.RecommendationBusy = false;
}

}  // namespace
}  // namespace vistrel
