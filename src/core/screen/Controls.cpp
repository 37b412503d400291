#include "Controls.h"

#include <algorithm>
#include <cctype>

namespace vistrel {

TextBox::TextBox(Form& form, std::string name, int index)
    : Control(form, ControlKind::TextBox, std::move(name), index)
{
    setBackColor(colors::WindowBackground);
    setForeColor(colors::WindowText);
}

void TextBox::setText(const std::string& text)
{
    if (text == text_)
        return;
    text_ = text;
    notify(Prop::Text);
    raise(onChange);
}

CheckBox::CheckBox(Form& form, std::string name, int index)
    : Control(form, ControlKind::CheckBox, std::move(name), index)
{
}

void CheckBox::setValue(int value)
{
    if (value == value_)
        return;
    value_ = value;
    notify(Prop::Value);
    raise(onClick);
}

void CheckBox::click()
{
    setValue(value_ == 1 ? 0 : 1);
}

OptionButton::OptionButton(Form& form, std::string name, OptionGroup& group, int index)
    : Control(form, ControlKind::OptionButton, std::move(name), index), group_(&group)
{
    group.add(*this);
}

void OptionButton::clearSilently()
{
    if (!value_)
        return;
    value_ = false;
    notify(Prop::Value);
}

void OptionButton::setValue(bool value)
{
    if (!value) {
        clearSilently();
        return;
    }
    for (OptionButton* other : group_->members())
        if (other != this)
            other->clearSilently();
    if (!value_) {
        value_ = true;
        notify(Prop::Value);
    }
    raise(onClick);
}

void OptionButton::selectQuietly()
{
    for (OptionButton* other : group_->members())
        if (other != this)
            other->clearSilently();
    if (!value_) {
        value_ = true;
        notify(Prop::Value);
    }
}

void OptionButton::click()
{
    select();
}

CommandButton::CommandButton(Form& form, std::string name, int index)
    : Control(form, ControlKind::CommandButton, std::move(name), index)
{
}

Label::Label(Form& form, std::string name, int index)
    : Control(form, ControlKind::Label, std::move(name), index)
{
}

Frame::Frame(Form& form, std::string name, int index)
    : Control(form, ControlKind::Frame, std::move(name), index)
{
}

Image::Image(Form& form, std::string name, int index)
    : Control(form, ControlKind::Image, std::move(name), index)
{
}

namespace {

// The sorted list compares as the platform's list box did: without regard
// to the case of letters, otherwise character by character.
bool rowTextLess(const std::string& a, const std::string& b)
{
    const size_t n = std::min(a.size(), b.size());
    auto fold = [](char c) {
        const auto u = static_cast<unsigned char>(c);
        return u >= 'A' && u <= 'Z' ? u + ('a' - 'A') : u;
    };
    for (size_t i = 0; i < n; ++i) {
        const int ca = fold(a[i]);
        const int cb = fold(b[i]);
        if (ca != cb)
            return ca < cb;
    }
    return a.size() < b.size();
}

}  // namespace

ListBox::ListBox(Form& form, std::string name, bool sorted, int index)
    : Control(form, ControlKind::ListBox, std::move(name), index), sorted_(sorted)
{
    setBackColor(colors::WindowBackground);
    setForeColor(colors::WindowText);
}

int ListBox::addItem(const std::string& text, std::int32_t itemData)
{
    auto at = order_.end();
    if (sorted_) {
        // Equal rows keep the order in which they came.
        at = std::upper_bound(order_.begin(), order_.end(), text, [this](const std::string& t, int k) {
            return rowTextLess(t, rows_[static_cast<size_t>(k)].text);
        });
    }
    const int position = static_cast<int>(at - order_.begin());
    rows_.push_back(Row{text, itemData});
    order_.insert(at, static_cast<int>(rows_.size()) - 1);
    if (listIndex_ >= position)
        ++listIndex_;
    if (ControlObserver* o = observer())
        o->listRowInserted(*this, position);
    return position;
}

void ListBox::setItemData(int row, std::int32_t data)
{
    if (row < 0 || row >= listCount())
        return;
    rows_[static_cast<size_t>(order_[static_cast<size_t>(row)])].itemData = data;
}

void ListBox::clear()
{
    rows_.clear();
    order_.clear();
    listIndex_ = -1;
    topIndex_ = 0;
    if (ControlObserver* o = observer())
        o->listCleared(*this);
}

void ListBox::setListIndex(int index)
{
    if (index < -1 || index >= listCount())
        index = -1;
    if (index == listIndex_)
        return;
    listIndex_ = index;
    notify(Prop::ListIndex);
}

void ListBox::setTopIndex(int index)
{
    index = std::clamp(index, 0, std::max(0, listCount() - 1));
    if (index == topIndex_)
        return;
    topIndex_ = index;
    notify(Prop::TopIndex);
    raise(onScroll);
}

ComboBox::ComboBox(Form& form, std::string name, int index)
    : Control(form, ControlKind::ComboBox, std::move(name), index)
{
    setBackColor(colors::WindowBackground);
    setForeColor(colors::WindowText);
}

void ComboBox::setText(const std::string& text)
{
    if (text == text_)
        return;
    text_ = text;
    notify(Prop::Text);
}

void ComboBox::addItem(const std::string& item)
{
    items_.push_back(item);
    notify(Prop::List);
}

void ComboBox::clear()
{
    items_.clear();
    notify(Prop::List);
}

Grid::Grid(Form& form, std::string name, int rows, int cols, int index)
    : Control(form, ControlKind::Grid, std::move(name), index),
      rows_(rows),
      cols_(cols),
      colWidths_(static_cast<size_t>(cols), 600),
      cells_(static_cast<size_t>(rows * cols))
{
    setBackColor(colors::WindowBackground);
}

void Grid::moveTo(int row, int col)
{
    row = std::clamp(row, 0, std::max(0, rows_ - 1));
    col = std::clamp(col, 0, std::max(0, cols_ - 1));
    if (row == row_ && col == col_)
        return;
    raise(onLeaveCell);
    row_ = row;
    col_ = col;
    notify(Prop::CurrentCell);
    raise(onEnterCell);
}

void Grid::setRow(int row)
{
    if (row == row_)
        return;
    row_ = row;
    notify(Prop::CurrentCell);
}

void Grid::setCol(int col)
{
    if (col == col_)
        return;
    col_ = col;
    notify(Prop::CurrentCell);
}

void Grid::setTopRow(int row)
{
    row = std::clamp(row, 1, std::max(1, rows_ - 1));
    if (row == topRow_)
        return;
    topRow_ = row;
    notify(Prop::Scroll);
    raise(onScroll);
}

int Grid::colWidth(int col) const
{
    if (col < 0 || col >= cols_)
        return 0;
    return colWidths_[static_cast<size_t>(col)];
}

void Grid::setColWidth(int col, int twips)
{
    if (col < 0 || col >= cols_ || colWidths_[static_cast<size_t>(col)] == twips)
        return;
    colWidths_[static_cast<size_t>(col)] = twips;
    notify(Prop::Geometry);
}

void Grid::setRowHeight(int twips)
{
    if (twips == rowHeight_)
        return;
    rowHeight_ = twips;
    notify(Prop::Geometry);
}

int Grid::cellLeft() const
{
    int left = 0;
    for (int c = 0; c < col_ && c < cols_; ++c)
        left += colWidths_[static_cast<size_t>(c)];
    return left;
}

int Grid::cellTop() const
{
    // Fixed headings stay at the top; the other rows scroll below them.
    if (row_ <= 0)
        return 0;
    return rowHeight_ * (1 + row_ - topRow_);
}

Grid::Cell* Grid::cell(int row, int col)
{
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_)
        return nullptr;
    return &cells_[static_cast<size_t>(row * cols_ + col)];
}

const Grid::Cell* Grid::cell(int row, int col) const
{
    return const_cast<Grid*>(this)->cell(row, col);
}

const std::string& Grid::textMatrix(int row, int col) const
{
    static const std::string none;
    const Cell* c = cell(row, col);
    return c ? c->text : none;
}

void Grid::setTextMatrix(int row, int col, const std::string& text)
{
    if (Cell* c = cell(row, col); c && c->text != text) {
        c->text = text;
        notify(Prop::Cells);
    }
}

Color Grid::cellBackColor(int row, int col) const
{
    const Cell* c = cell(row, col);
    return c ? c->back : colors::WindowBackground;
}

void Grid::setCellBackColor(int row, int col, Color color)
{
    if (Cell* c = cell(row, col); c && c->back != color) {
        c->back = color;
        notify(Prop::Cells);
    }
}

Timer::Timer(Form& form, std::string name, int intervalMs)
    : Control(form, ControlKind::Timer, std::move(name)), interval_(intervalMs)
{
}

void Timer::setInterval(int ms)
{
    if (ms == interval_)
        return;
    interval_ = ms;
    notify(Prop::Interval);
}

void Timer::fire()
{
    if (enabled())
        raise(onTimer);
}

Menu::Menu(Form& form, std::string name, Menu* parent)
    : Control(form, ControlKind::Menu, std::move(name)), parent_(parent)
{
}

void Menu::setChecked(bool on)
{
    if (on == checked_)
        return;
    checked_ = on;
    notify(Prop::Value);
}

}  // namespace vistrel
