#pragma once

#include <string>

namespace vistrel {

class Frm_LensFrames;
class TextBox;

// Where the stock records of the inventory file and of the journal land on
// the stock screens. Powers are compared as exact texts ("0.25", "-1.50"),
// as the records carry them; -1 means the text names no cell.

// Reading glasses: "0.00" to "4.75", cells 0 to 19.
int ReadingCellOf(const std::string& power);

// Lens grids 0 and 1: sphere "6.00" down to "-6.00" on rows 1 to 49.
int LensRowOf(const std::string& sphere);
// The high-power grid 2: "16.00" down to "6.25" on rows 1 to 40, "-6.25"
// down to "-16.00" on rows 41 to 80.
int HighLensRowOf(const std::string& sphere);
// Cylinder "0.00" to "-3.00" on columns 1 to 13.
int LensColumnOf(const std::string& cylinder);

// The sphere and cylinder texts of a grid row and column, as headed.
std::string LensSphereText(int grid, int row);
std::string LensCylinderText(int column);

// Frame sizes, exact texts: "65", "67", "70" adult and "57", "61", "65"
// child are 0 to 2.
int FrameSizeOf(bool child, const std::string& size);
// The frame box of a size, or none.
TextBox* FrameBoxOf(Frm_LensFrames& screen, bool child, const std::string& size);

}  // namespace vistrel
