// The tab order of the twelve entry fields, left eye first or right eye first.

#include "core/Frm_Vistrel.h"

namespace vistrel {

namespace {

void setOrder(const std::initializer_list<std::pair<TextBox*, int>>& order)
{
    // All twelve, then all twelve once more, so that each ends where it should.
    for (int pass = 0; pass < 2; ++pass)
        for (auto [box, index] : order)
            box->setTabIndex(index);
}

}  // namespace

void Frm_Vistrel::TabIndexleft()
{
    setOrder({{&Txt_Sphere_Left, 10}, {&Txt_Cylinder_Left, 11}, {&Txt_Axis_Left, 12}, {&Txt_LeftAdd, 16},
        {&Txt_LeftReadingPower, 20}, {&Txt_Sphere_Equ_Left, 90}, {&Txt_Sphere_Right, 13}, {&Txt_Cylinder_Right, 14},
        {&Txt_Axis_Right, 15}, {&Txt_RightAdd, 17}, {&Txt_RightReadingPower, 21}, {&Txt_Sphere_Equ_Right, 91}});
}

void Frm_Vistrel::TabIndexRight()
{
    setOrder({{&Txt_Sphere_Left, 13}, {&Txt_Cylinder_Left, 14}, {&Txt_Axis_Left, 15}, {&Txt_LeftAdd, 17},
        {&Txt_LeftReadingPower, 21}, {&Txt_Sphere_Equ_Left, 91}, {&Txt_Sphere_Right, 10}, {&Txt_Cylinder_Right, 11},
        {&Txt_Axis_Right, 12}, {&Txt_RightAdd, 16}, {&Txt_RightReadingPower, 20}, {&Txt_Sphere_Equ_Right, 90}});
}

}  // namespace vistrel
