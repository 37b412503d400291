#include "AutorefractorModels.h"

#include "Frm_ProgramOptions.h"

namespace vistrel {

namespace {

using RF = ReadingField;

const AutorefractorModel kModels[] = {
    {"NIKON RETINOMAX2", "9600,n,8,1", RF::Shown, RF::Shown, false, "Autorefractor Using is:      Retinomax 2",
        "Autorefractor Using is:     Retinomax 2", true, false, 1},
    {"NIKON RETINOMAX3", "9600,n,8,2", RF::Shown, RF::Shown, false, "Autorefractor Using is:      Retinomax 3",
        "Autorefractor Using is:     Retinomax 3", true, false, 2},
    {"NIKON RETINOMAX", "1200,n,8,2", RF::Shown, RF::Shown, false, "Autorefractor Using is: Nikon Retinomax",
        "Autorefractor Using is: Nikon Retinomax", true, false, 0},
    {"HUMPHREY 597", "9600,n,8,1", RF::Unchanged, RF::Shown, false, "Autorefractor Using is: Humphrey 597",
        "Autorefractor Using is:     Humphrey 597", false, false, 3},
    {"WELCHALLYN SURESIGHT", "9600,n,8,1", RF::Unchanged, RF::Unchanged, false,
        "Autorefractor Using is: Welch Allyn Suresight", "Autorefractor Using is: Welch Allyn Suresight", false,
        false, 4},
    {"MARCONIDEK ARK-20/30", "9600,o,8,1", RF::Shown, RF::Shown, true,
        "Autorefractor Using is: Marco Nidek ARK-20/30", "Autorefractor Using is: Marco Nidek ARK-20/30", false,
        false, 5},
    {"CANON RK-2", "9600,n,8,1", RF::Hidden, RF::Hidden, true, "Autorefractor Using is: Canon RK-2",
        "Autorefractor Using is: Canon RK-2", false, false, 6},
    {"TOPCON KR-3000-7000", "9600,n,7,2", RF::Hidden, RF::Hidden, true,
        "Autorefractor Using is: Topcon KR-3000-7000", "Autorefractor Using is: TOPCON KR-3000-7000", false, false,
        7},
    {"BURTON VELO 20-10", "9600,n,8,1", RF::Hidden, RF::Shown, true, "Autorefractor Using is: Burton Velo 20/10",
        "Autorefractor Using is: Burton Velo 20/10", false, false, 8},
    {"SHIN NIPPON 8001", "9600,n,8,1", RF::Hidden, RF::Shown, true, "Autorefractor Using is: Shin Nippon 8001",
        "Autorefractor Using is: Shin Nippon 8001", false, false, 9},
    {"REICHERT RK600", "9600,n,8,1", RF::Hidden, RF::Shown, true, "Autorefractor Using is: Reichert RK-600",
        "Autorefractor Using is: Reichert RK600", false, false, 10},
    {"NONE", "", RF::Unchanged, RF::Unchanged, false, "", "", false, true, 11},
};

OptionButton* optionByIndex(Frm_ProgramOptions& o, int index)
{
    OptionButton* options[] = {&o.Opt_NikonRetinomax, &o.Opt_NikonRetinomax2, &o.Opt_NikonRetinomax3,
        &o.Opt_Humphrey597, &o.Opt_WelchAllynSuresight, &o.Opt_MarcoNidekArk, &o.Opt_CanonRK2, &o.Opt_KR_3000_7000,
        &o.Opt_Burton2010, &o.Opt_ShinNippon8001, &o.Opt_Reichert_RK600, &o.Opt_NoAutorefractor};
    return index >= 0 && index < 12 ? options[index] : nullptr;
}

}  // namespace

const AutorefractorModel* findAutorefractorModel(const std::string& keyword)
{
    for (const AutorefractorModel& m : kModels)
        if (keyword == m.keyword)
            return &m;
    return nullptr;
}

const AutorefractorModel* selectedAutorefractorModel(Frm_ProgramOptions& options)
{
    for (const AutorefractorModel& m : kModels)
        if (OptionButton* o = optionByIndex(options, m.optionIndex); o && o->value())
            return &m;
    return nullptr;
}

OptionButton* modelOption(Frm_ProgramOptions& options, const AutorefractorModel& model)
{
    return optionByIndex(options, model.optionIndex);
}

}  // namespace vistrel
