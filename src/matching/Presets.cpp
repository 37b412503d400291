// The six tolerance presets, on the options screen and on the main screen,
// kept in step: the preset in force is yellow on both, the others cyan.

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"

#include <array>

namespace vistrel {

namespace {

enum class Preset { Default, Exact, Halved, Quartered, Doubled, Maximum };

struct ToleranceItem {
    TextBox* field;
    std::string* value;
    std::string* valueDefault;
};

std::array<ToleranceItem, 6> toleranceItems(Frm_ProgramOptions& o, Frm_Vistrel& v)
{
    return {{{&o.Txt_Max_Sphere_Overage, &v.Max_Sphere_OverageValue, &v.Max_Sphere_OverageValueDefault},
        {&o.Txt_Max_Cylinder_Overage, &v.Max_Cylinder_OverageValue, &v.Max_Cylinder_OverageValueDefault},
        {&o.Txt_Axis_Deviation, &v.Axis_DeviationValue, &v.Axis_DeviationValueDefault},
        {&o.Txt_Max_Cylinder, &v.Max_CylinderValue, &v.Max_CylinderValueDefault},
        {&o.Txt_Min_Sphere, &v.Min_SphereValue, &v.Min_SphereValueDefault},
        {&o.Txt_CutBack, &v.Txt_CutBackValue, &v.Txt_CutBackValueDefault}}};
}

void colourPresets(Frm_ProgramOptions& o, Frm_Vistrel& v, Preset active)
{
    const std::array<CommandButton*, 6> mainButtons = {
        &v.Cmd_Default, &v.Cmd_2Exact_Match, &v.CMD_2DefDev2, &v.CMD_2DefDev4, &v.Cmd_2DefTimes2, &v.Cmd_MAX};
    const std::array<CommandButton*, 6> optionButtons = {&o.Cmd_RestoreDefaults, &o.Cmd_ExactMatch,
        &o.Cmd_DefaultsDev2, &o.Cmd_DefaultsDev4, &o.Cmd_DefaultsTimes2, &o.Cmd_MAX};
    const auto index = static_cast<size_t>(active);
    for (size_t k = 0; k < mainButtons.size(); ++k)
        mainButtons[k]->setBackColor(k == index ? colors::Yellow : colors::Cyan);
    for (size_t k = 0; k < optionButtons.size(); ++k)
        optionButtons[k]->setBackColor(k == index ? colors::Yellow : colors::Cyan);
}

// Halved, quartered, doubled and maximum: each item from its Default twin.
void applyComputed(Frm_ProgramOptions& o, Frm_Vistrel& v, Preset preset)
{
    o.LockToleranceFields(true);
    auto items = toleranceItems(o, v);
    for (size_t k = 0; k < items.size(); ++k) {
        const double base = Val(*items[k].valueDefault);
        double factor = 1;
        switch (preset) {
        case Preset::Halved:
            factor = 0.5;
            break;
        case Preset::Quartered:
            factor = 0.25;
            break;
        case Preset::Doubled:
            factor = 2;
            break;
        case Preset::Maximum:
            factor = k <= 1 ? 10 : k == 2 ? 4 : 2;
            break;
        default:
            break;
        }
        if (preset == Preset::Quartered && k == 3)
            items[k].field->setText("0.25");  // held at a quarter on purpose
        else
            items[k].field->setText(Str(base * factor));
    }
    for (ToleranceItem& item : items)
        *item.value = item.field->text();
    colourPresets(o, v, preset);
}

}  // namespace

void Frm_ProgramOptions::LockToleranceFields(bool lock)
{
    for (TextBox* box : {&Txt_Max_Sphere_Overage, &Txt_Max_Cylinder_Overage, &Txt_Axis_Deviation,
             &Txt_Max_Cylinder, &Txt_Min_Sphere, &Txt_CutBack}) {
        box->setBackColor(lock ? colors::LightGrey : colors::White);
        box->setLocked(lock);
    }
}

void Frm_ProgramOptions::Cmd_RestoreDefaults_Click()
{
    Frm_Vistrel& v = vistrel();
    LockToleranceFields(false);
    for (ToleranceItem& item : toleranceItems(*this, v)) {
        *item.value = *item.valueDefault;
        item.field->setText(*item.value);
    }
    colourPresets(*this, v, Preset::Default);
}

void Frm_ProgramOptions::Cmd_ExactMatch_Click()
{
    Frm_Vistrel& v = vistrel();
    LockToleranceFields(true);
    static const char* const literals[] = {"0.00", "0.00", "0", "0.00", "4.00", "0.25"};
    auto items = toleranceItems(*this, v);
    for (size_t k = 0; k < items.size(); ++k) {
        *items[k].value = literals[k];
        items[k].field->setText(literals[k]);
    }
    colourPresets(*this, v, Preset::Exact);
}

void Frm_ProgramOptions::Cmd_DefaultsDev2_Click()
{
    applyComputed(*this, vistrel(), Preset::Halved);
}

void Frm_ProgramOptions::Cmd_DefaultsDev4_Click()
{
    applyComputed(*this, vistrel(), Preset::Quartered);
}

void Frm_ProgramOptions::Cmd_DefaultsTimes2_Click()
{
    applyComputed(*this, vistrel(), Preset::Doubled);
}

void Frm_ProgramOptions::Cmd_MAX_Click()
{
    applyComputed(*this, vistrel(), Preset::Maximum);
}

// The main screen's buttons run the options' preset, then search when
// automatic search is on; they don't look at SkipSearch.
namespace {
void searchIfAutomatic(Frm_Vistrel& v, Frm_ProgramOptions& o)
{
    if (o.Chk_AutoSearch.value() == 1)
        v.Search_Click();
}
}  // namespace

void Frm_Vistrel::Cmd_Default_Click()
{
    if (JumpBack)
        return;
    options().Cmd_RestoreDefaults_Click();
    searchIfAutomatic(*this, options());
}

void Frm_Vistrel::Cmd_2Exact_Match_Click()
{
    options().Cmd_ExactMatch_Click();
    searchIfAutomatic(*this, options());
}

void Frm_Vistrel::CMD_2DefDev2_Click()
{
    options().Cmd_DefaultsDev2_Click();
    searchIfAutomatic(*this, options());
}

void Frm_Vistrel::CMD_2DefDev4_Click()
{
    options().Cmd_DefaultsDev4_Click();
    searchIfAutomatic(*this, options());
}

void Frm_Vistrel::Cmd_2DefTimes2_Click()
{
    options().Cmd_DefaultsTimes2_Click();
    searchIfAutomatic(*this, options());
}

void Frm_Vistrel::Cmd_MAX_Click()
{
    options().Cmd_MAX_Click();
    searchIfAutomatic(*this, options());
}

}  // namespace vistrel
