#pragma once

#include <string>

namespace vistrel {

class Frm_ProgramOptions;
class OptionButton;

enum class ReadingField { Shown, Hidden, Unchanged };

// One row of the table of autorefractor models the options know: the
// keyword of the options file, the line settings, whether the main screen's
// reading-number field shows (reader and writer disagree for some rows, and
// both are kept), the captions, and the option control of the model.
struct AutorefractorModel {
    const char* keyword;
    const char* settings;
    ReadingField readingFieldAtRead;
    ReadingField readingFieldAtWrite;
    bool raisesSignal;  // data terminal ready, beyond what start-up sets
    const char* captionAtRead;
    const char* captionAtWrite;
    bool confidence;  // the reader shows the confidence values
    bool isNone;
    int optionIndex;  // which model option of the options screen
};

// The row of a keyword folded to upper case; nullptr when unknown.
const AutorefractorModel* findAutorefractorModel(const std::string& keyword);
// The row whose option is selected on the options screen; nullptr for none.
const AutorefractorModel* selectedAutorefractorModel(Frm_ProgramOptions& options);
OptionButton* modelOption(Frm_ProgramOptions& options, const AutorefractorModel& model);

}  // namespace vistrel
