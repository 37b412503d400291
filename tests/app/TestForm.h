#pragma once

// A small screen with one control of each kind, on a real station, for
// the binding tests.

#include "ControlBinding.h"
#include "FormWindow.h"
#include "Metrics.h"
#include "QtPlatform.h"

#include "core/Station.h"
#include "core/screen/Controls.h"
#include "core/screen/Form.h"

#include <memory>

namespace vistrel::test {

class TestForm : public Form {
public:
    explicit TestForm(Station& station) : Form(station, "Frm_Test")
    {
        setCaption("Test screen");
        setGeometry(0, 0, 9000, 6000);
        Frm_Box.setGeometry(150, 150, 4500, 3000);
        Frm_Box.setCaption("Box");
        Txt_Name.setContainer(&Frm_Box);
        Txt_Name.setGeometry(300, 450, 1500, 300);
        Txt_Age.setGeometry(5000, 150, 900, 300);
        Txt_Notes.setMultiLine(true);
        Txt_Notes.setGeometry(5000, 600, 3000, 900);
        Chk_Blind.setGeometry(5000, 1600, 1500, 300);
        Opt_A.setGeometry(5000, 2000, 1200, 300);
        Opt_B.setGeometry(5000, 2300, 1200, 300);
        Cmd_Go.setGeometry(5000, 2700, 1200, 375);
        Cmd_Go.setCaption("&Go");
        Lbl_Title.setGeometry(150, 3300, 3000, 300);
        Lst_Rows.setGeometry(150, 3700, 3000, 1500);
        Lst_Stock.setGeometry(3300, 3700, 3000, 1500);
        Tmr_Tick.setEnabled(false);
        Grd_Cells.setGeometry(6450, 3700, 2400, 1200);
        Cbo_Printer.setGeometry(6450, 5000, 2400, 315);
    }

    Frame Frm_Box{*this, "Frm_Box"};
    TextBox Txt_Name{*this, "Txt_Name"};
    TextBox Txt_Age{*this, "Txt_Age"};
    TextBox Txt_Notes{*this, "Txt_Notes"};
    CheckBox Chk_Blind{*this, "Chk_Blind"};
    OptionGroup Group;
    OptionButton Opt_A{*this, "Opt_A", Group};
    OptionButton Opt_B{*this, "Opt_B", Group};
    CommandButton Cmd_Go{*this, "Cmd_Go"};
    Label Lbl_Title{*this, "Lbl_Title"};
    ListBox Lst_Rows{*this, "Lst_Rows", true};
    ListBox Lst_Stock{*this, "Lst_Stock"};
    Timer Tmr_Tick{*this, "Tmr_Tick", 20};
    Grid Grd_Cells{*this, "Grd_Cells", 3, 4};
    ComboBox Cbo_Printer{*this, "Cbo_Printer"};
};

// The station every test's screen belongs to; it is never started.
struct TestStation {
    qt::QtPlatform platform;
    Station station{platform};
};

// A test screen bound into a dialog window at 96 dots per inch.
struct BoundForm {
    explicit BoundForm(Station& station, qt::FormWindow::Kind kind = qt::FormWindow::Kind::Dialog)
        : form(station), window(form, kind, qt::Metrics(1.0, 96.0))
    {
    }

    template <typename W>
    W* widget(const Control& control) const
    {
        return qobject_cast<W*>(window.widgetFor(control));
    }

    TestForm form;
    qt::FormWindow window;
};

}  // namespace vistrel::test
