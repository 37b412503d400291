// The main screen's buttons that open the stock grids. Each grid screen
// stays in front until hidden, as its Hide button's tip says.

#include "Frm_LensFrames.h"
#include "Frm_ReadingGlasses.h"
#include "core/Frm_Vistrel.h"

namespace vistrel {

void Frm_Vistrel::Cmd_ReadingGlasses_Click()
{
    readingGlasses().Showing = true;
    readingGlasses().show(true);
}

void Frm_Vistrel::Cmd_DisplayLensFrames_Click()
{
    lensFrames().Showing = true;
    lensFrames().show(true);
}

}  // namespace vistrel
