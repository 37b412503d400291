#pragma once

#include "Control.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vistrel {

// A text box. Writing a different text raises the change handler, whoever
// writes it: the derived values of the screens rest on that.
class TextBox : public Control {
public:
    TextBox(Form& form, std::string name, int index = -1);

    const std::string& text() const { return text_; }
    void setText(const std::string& text);

    bool multiLine() const { return multiLine_; }
    void setMultiLine(bool on) { multiLine_ = on; }

    std::function<void()> onChange;

private:
    std::string text_;
    bool multiLine_ = false;
};

// A check box holds 0 or 1; a changed value raises the click handler.
class CheckBox : public Control {
public:
    CheckBox(Form& form, std::string name, int index = -1);

    int value() const { return value_; }
    bool checked() const { return value_ == 1; }
    void setValue(int value);

    void click() override;  // a person's click toggles the box

private:
    int value_ = 0;
};

class OptionButton;

// Options that exclude each other: those of one frame of the screen.
class OptionGroup {
public:
    void add(OptionButton& option) { members_.push_back(&option); }
    const std::vector<OptionButton*>& members() const { return members_; }

private:
    std::vector<OptionButton*> members_;
};

// Selecting an option clears the others of its group and raises its click
// handler, also when it was selected already.
class OptionButton : public Control {
public:
    OptionButton(Form& form, std::string name, OptionGroup& group, int index = -1);

    bool value() const { return value_; }
    void setValue(bool value);
    void select() { setValue(true); }
    // Selects without the click handler: for the one place where a screen
    // marks an option of another screen and must not run its handler.
    void selectQuietly();
    const OptionGroup& group() const { return *group_; }

    void click() override;

private:
    friend class OptionGroup;
    void clearSilently();

    OptionGroup* group_;
    bool value_ = false;
};

class CommandButton : public Control {
public:
    CommandButton(Form& form, std::string name, int index = -1);
};

class Label : public Control {
public:
    Label(Form& form, std::string name, int index = -1);
};

class Frame : public Control {
public:
    Frame(Form& form, std::string name, int index = -1);
};

class Image : public Control {
public:
    Image(Form& form, std::string name, int index = -1);
};

// A list of text rows, each with one integer beside it. The sorted kind
// keeps its rows in text order; that order is the ranking of a search.
class ListBox : public Control {
public:
    struct Row {
        std::string text;
        std::int32_t itemData = 0;
    };

    ListBox(Form& form, std::string name, bool sorted = false, int index = -1);

    bool sorted() const { return sorted_; }
    int listCount() const { return static_cast<int>(order_.size()); }
    // The row at a place of the display order.
    const Row& row(int index) const { return rows_.at(static_cast<size_t>(order_.at(static_cast<size_t>(index)))); }

    // Adds a row and gives its place, which a sorted list chooses itself.
    int addItem(const std::string& text, std::int32_t itemData = 0);
    void setItemData(int row, std::int32_t data);
    void clear();

    int listIndex() const { return listIndex_; }
    void setListIndex(int index);
    int topIndex() const { return topIndex_; }
    void setTopIndex(int index);

    std::function<void()> onScroll;

private:
    bool sorted_;
    // Rows in arrival order, and their display order: a sorted insert then
    // moves small integers, not rows, which keeps 2000 candidates quick.
    std::vector<Row> rows_;
    std::vector<int> order_;
    int listIndex_ = -1;
    int topIndex_ = 0;
};

class ComboBox : public Control {
public:
    ComboBox(Form& form, std::string name, int index = -1);

    const std::string& text() const { return text_; }
    void setText(const std::string& text);
    const std::vector<std::string>& items() const { return items_; }
    void addItem(const std::string& item);
    void clear();

private:
    std::string text_;
    std::vector<std::string> items_;
};

// A grid of text cells with a back colour each and a current cell. Row 0
// and column 0 are the fixed headings; the rows below scroll under them.
class Grid : public Control {
public:
    Grid(Form& form, std::string name, int rows, int cols, int index = -1);

    int rows() const { return rows_; }
    int cols() const { return cols_; }
    const std::string& textMatrix(int row, int col) const;
    void setTextMatrix(int row, int col, const std::string& text);
    Color cellBackColor(int row, int col) const;
    void setCellBackColor(int row, int col, Color color);

    // The current cell. Setting it from the program raises nothing;
    // moveTo is a person's move: LeaveCell, the move, EnterCell.
    int row() const { return row_; }
    int col() const { return col_; }
    void setRow(int row);
    void setCol(int col);
    void moveTo(int row, int col);
    const std::string& text() const { return textMatrix(row_, col_); }
    void setText(const std::string& text) { setTextMatrix(row_, col_, text); }

    // The first scrolled row shown under the headings; a change raises Scroll.
    int topRow() const { return topRow_; }
    void setTopRow(int row);

    // Column widths and the row height, in twips as the screens were drawn,
    // and the place of the current cell relative to the grid's top left.
    int colWidth(int col) const;
    void setColWidth(int col, int twips);
    int rowHeight() const { return rowHeight_; }
    void setRowHeight(int twips);
    int cellLeft() const;
    int cellTop() const;
    int cellWidth() const { return colWidth(col_); }
    int cellHeight() const { return rowHeight_; }

    std::function<void()> onEnterCell;
    std::function<void()> onLeaveCell;
    std::function<void()> onScroll;

private:
    struct Cell {
        std::string text;
        Color back = colors::WindowBackground;
    };
    Cell* cell(int row, int col);
    const Cell* cell(int row, int col) const;

    int rows_;
    int cols_;
    int row_ = 0;
    int col_ = 0;
    int topRow_ = 1;
    int rowHeight_ = 240;
    std::vector<int> colWidths_;
    std::vector<Cell> cells_;
};

// A timer fires only in the window program's event loop, or by the
// driver's tick; the core just names its interval and handler.
class Timer : public Control {
public:
    Timer(Form& form, std::string name, int intervalMs);

    int interval() const { return interval_; }
    void setInterval(int ms);
    void fire();

    std::function<void()> onTimer;

private:
    int interval_;
};

// A menu entry: a top menu of the menu bar, or an entry beneath one.
class Menu : public Control {
public:
    Menu(Form& form, std::string name, Menu* parent = nullptr);

    Menu* parentMenu() const { return parent_; }
    bool checked() const { return checked_; }
    void setChecked(bool on);

private:
    Menu* parent_;
    bool checked_ = false;
};

// Controls sharing a name and told apart by index, as Txt_From(0) to (7).
template <typename T>
class ControlArray {
public:
    template <typename... Args>
    ControlArray(Form& form, const std::string& name, int first, int last, Args&&... args)
        : first_(first)
    {
        for (int i = first; i <= last; ++i)
            items_.push_back(std::make_unique<T>(form, name, args..., i));
    }
    // Option arrays need the group before the index.
    T& operator[](int index) { return *items_.at(static_cast<size_t>(index - first_)); }
    const T& operator[](int index) const { return *items_.at(static_cast<size_t>(index - first_)); }
    int first() const { return first_; }
    int last() const { return first_ + static_cast<int>(items_.size()) - 1; }
    int size() const { return static_cast<int>(items_.size()); }

private:
    int first_;
    std::vector<std::unique_ptr<T>> items_;
};

}  // namespace vistrel
