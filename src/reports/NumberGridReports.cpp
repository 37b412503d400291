// The reports that list bag numbers side by side: deleted pairs, rejected
// pairs still in stock, and the numbers no pair holds.

#include "ReportFrame.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"
#include "platform/Platform.h"

#include <algorithm>
#include <string>

namespace vistrel {

namespace {

// Entries run on along a line; before an entry that would pass the row's
// width the line is closed with " ". The last row is closed the same way,
// then a blank line and the total follow.
class NumberGrid {
public:
    NumberGrid(ReportFrame& report, int perRow) : report_(report), perRow_(perRow) {}

    void entry(const std::string& text)
    {
        if (inRow_ == perRow_) {
            report_.printLine(" ");
            inRow_ = 0;
        }
        report_.print(text);
        ++inRow_;
        ++count_;
    }

    void total(const std::string& caption)
    {
        report_.printLine(" ");
        report_.printLine(" ");
        report_.printLine(caption + Format(count_, "###0"));
    }

private:
    ReportFrame& report_;
    int perRow_;
    int inRow_ = 0;
    int count_ = 0;
};

void heads(ReportFrame& report, const std::string& title, const DateTime& now)
{
    report.printLine(" ");
    report.printLine(" ");
    report.printLine(title);
    report.printLine("                 As of: " + ReportFrame::AsOf(now));
}

}  // namespace

void Frm_Vistrel::DeletedReport_Click()
{
    ReportFrame report(*this);
    heads(report, "---------- Numbers of deleted Glasses in Inventory. -----------", platform().now());
    NumberGrid grid(report, 10);
    for (size_t r = 0; r < Inv_Removed.size(); ++r)
        if (Inv_Removed[r])
            grid.entry(Format(Inv_Number[r], "00000") + "  ");
    grid.total("Number of deletions = ");
    report.show();
}

// Pairs that were refused at least once and are still in stock: the count
// is of pairs, not of rejections.
void Frm_Vistrel::RejectedReport_Click()
{
    ReportFrame report(*this);
    heads(report, "-Inventory Numbers and Occurances of Rejected Glasses in Inventory. --", platform().now());
    NumberGrid grid(report, 8);
    for (size_t r = 0; r < Inv_RejectCount.size(); ++r)
        if (Inv_RejectCount[r] > 0 && !Inv_Removed[r])
            grid.entry(Format(Inv_Number[r], "00000") + " " + Format(Inv_RejectCount[r], "00") + "  ");
    grid.total("Number of rejections = ");
    report.show();
}

// The bag numbers up to the highest one that no pair in stock holds. The
// numbers of removed pairs are first marked free, and stay so until the
// next load: a pair returned after this report isn't marked used again.
void Frm_Vistrel::VacantLocationsReport_Click()
{
    for (size_t r = 0; r < Inv_Removed.size(); ++r) {
        const int bag = Inv_Number[r];
        if (Inv_Removed[r] && bag >= 1 && bag <= static_cast<int>(Inv_LocationUsed.size()))
            Inv_LocationUsed[static_cast<size_t>(bag - 1)] = false;
    }

    ReportFrame report(*this);
    heads(report, "---------- Numbers of Vacant Locations in Inventory. -----------", platform().now());
    NumberGrid grid(report, 10);
    const int last = std::min<int>(PublicMaximumLocations, static_cast<int>(Inv_LocationUsed.size()));
    for (int n = 1; n <= last; ++n)
        if (!Inv_LocationUsed[static_cast<size_t>(n - 1)])
            grid.entry(Format(n, "00000") + "  ");
    grid.total("Number of vacancies = ");
    report.show();
}

}  // namespace vistrel
