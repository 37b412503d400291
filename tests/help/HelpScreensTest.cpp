// The help, about and update screens on a started station: the table of
// documents behind the help screen, Showing while a screen is up, the
// version CMake gives, the folders an update leaves alone, and screens
// whose controls fit them. What the menu entries and the help screen's
// buttons open, and the message for a missing document: the script cases
// help_*.

#include "FakePlatform.h"

#include "core/Frm_About.h"
#include "core/Frm_CheckForUpdates.h"
#include "core/Frm_HelpAreas.h"
#include "core/Frm_Vistrel.h"
#include "core/HelpDocuments.h"
#include "core/Station.h"

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <functional>
#include <set>
#include <string>

namespace vistrel {
namespace {

using test::FakePlatform;
using test::TempDir;
using test::writeFile;
namespace fs = std::filesystem;

// Lets a test look at a modal screen while it is up.
class HelpPlatform : public FakePlatform {
public:
    using FakePlatform::FakePlatform;
    std::function<void(Form&)> whileUp;

    void runModal(Form& form) override
    {
        if (whileUp)
            whileUp(form);
        FakePlatform::runModal(form);
    }
};

class HelpOnStation : public testing::Test {
protected:
    TempDir dir{"vistrel-help"};
    HelpPlatform platform{dir.path()};
    Station station{platform};

    Frm_Vistrel& main() { return station.vistrel(); }
    fs::path programFolder() const { return dir.path() / "program"; }

    void SetUp() override
    {
        writeFile(platform.optionsFile(),
            "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE,0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,"
            "2.50,100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,"
            "Default,1,32000\r\n");
        station.start();
    }
};

// ---- The table of documents ----

TEST(HelpDocumentTable, EveryTopicHasOneDocumentAndEveryButtonItsOwnKey)
{
    std::set<std::string> files;
    std::set<char> keys;
    for (const HelpDocument& d : HelpDocuments()) {
        SCOPED_TRACE(d.file);
        EXPECT_EQ(&HelpDocumentFor(d.topic), &d);
        EXPECT_TRUE(files.insert(d.file).second);
        EXPECT_TRUE(d.file.ends_with("_Help.pdf"));
        const size_t amp = d.title.find('&');
        ASSERT_NE(amp, std::string::npos);
        ASSERT_LT(amp + 1, d.title.size());
        EXPECT_TRUE(keys.insert(static_cast<char>(std::tolower(d.title[amp + 1]))).second);
    }
    // "&Close" keeps its key.
    EXPECT_EQ(keys.count('c'), 0u);
}

// ---- About and updates ----

TEST_F(HelpOnStation, AboutShowsTheVersionCMakeGaveAndIsShowingOnlyWhileUp)
{
    Frm_About& about = station.about();
    bool wasShowing = false;
    platform.whileUp = [&](Form& form) { wasShowing = &form == &about && about.Showing; };

    main().TellAbout.click();

    EXPECT_TRUE(wasShowing);
    EXPECT_FALSE(about.Showing);
    EXPECT_FALSE(about.visible());
    EXPECT_EQ(StationVersion(), VISTREL_TEST_PROJECT_VERSION);
    EXPECT_EQ(about.Lbl_Version.caption(), "Version " VISTREL_TEST_PROJECT_VERSION);
}

TEST_F(HelpOnStation, TheUpdateScreenTellsTheVersionAndWhereTheDataStay)
{
    Frm_CheckForUpdates& updates = station.checkForUpdates();
    std::string folders;
    platform.whileUp = [&](Form& form) {
        if (&form == &updates)
            folders = updates.Lbl_Folders.caption();
    };

    main().UpdateProgram.click();

    EXPECT_FALSE(updates.Showing);
    EXPECT_NE(updates.Lbl_Installed.caption().find(VISTREL_TEST_PROJECT_VERSION), std::string::npos);
    EXPECT_NE(folders.find(main().InventoryLocation), std::string::npos);
    EXPECT_NE(folders.find(main().OptionsFolder()), std::string::npos);
    EXPECT_NE(folders.find(programFolder().string()), std::string::npos);
}

// ---- Designs ----

// Every control of the screen lies within the window's client area (the
// outer size less a title bar and borders) and no two overlap.
void expectControlsFit(const Form& form)
{
    SCOPED_TRACE(form.name());
    constexpr int TitleAndBorders = 540;
    constexpr int Borders = 120;
    const auto& controls = form.controls();
    for (const Control* c : controls) {
        SCOPED_TRACE(c->fullName());
        EXPECT_GT(c->width(), 0);
        EXPECT_GT(c->height(), 0);
        EXPECT_GE(c->left(), 0);
        EXPECT_GE(c->top(), 0);
        EXPECT_LE(c->left() + c->width(), form.width() - Borders);
        EXPECT_LE(c->top() + c->height(), form.height() - TitleAndBorders);
    }
    for (size_t i = 0; i < controls.size(); ++i)
        for (size_t j = i + 1; j < controls.size(); ++j) {
            const Control& a = *controls[i];
            const Control& b = *controls[j];
            const bool apart = a.left() + a.width() <= b.left() || b.left() + b.width() <= a.left()
                || a.top() + a.height() <= b.top() || b.top() + b.height() <= a.top();
            EXPECT_TRUE(apart) << a.fullName() << " overlaps " << b.fullName();
        }
}

TEST_F(HelpOnStation, TheScreensControlsFitTheirWindowsWithoutOverlapping)
{
    expectControlsFit(station.helpAreas());
    expectControlsFit(station.about());
    expectControlsFit(station.checkForUpdates());
    // One button and one line for each document.
    EXPECT_EQ(station.helpAreas().Cmd_OpenHelp.size(), static_cast<int>(HelpDocuments().size()));
}

}  // namespace
}  // namespace vistrel
