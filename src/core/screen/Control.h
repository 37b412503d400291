#pragma once

#include "Colors.h"

#include <functional>
#include <string>

namespace vistrel {

class Form;
class Control;
class ListBox;

enum class ControlKind {
    TextBox,
    CheckBox,
    OptionButton,
    CommandButton,
    Label,
    Frame,
    ListBox,
    ComboBox,
    Grid,
    Timer,
    Image,
    Menu,
};

// What changed on a control, for whoever shows it.
enum class Prop {
    Text,
    Caption,
    Value,
    Visible,
    Enabled,
    Locked,
    BackColor,
    ForeColor,
    ToolTipText,
    Geometry,
    TabIndex,
    Font,
    List,
    ListIndex,
    TopIndex,
    Cells,
    Interval,
    Focus,
    Scroll,
    CurrentCell,
    BorderStyle,
};

struct Font {
    std::string name = "MS Sans Serif";
    double size = 8.25;
    bool bold = false;
    bool fixedPitch() const;
};

// The window program attaches one observer per control; the core never
// depends on it being there.
class ControlObserver {
public:
    virtual ~ControlObserver() = default;
    virtual void controlChanged(Control& control, Prop prop) = 0;
    virtual void listRowInserted(ListBox&, int /*row*/) {}
    virtual void listCleared(ListBox&) {}
};

// A named field of a screen. Every property write that changes something is
// reported to the observer; handlers are plain callbacks set by the screen.
class Control {
public:
    Control(Form& form, ControlKind kind, std::string name, int index = -1);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Form& form() const { return *form_; }
    ControlKind kind() const { return kind_; }
    const std::string& name() const { return name_; }
    int index() const { return index_; }
    std::string fullName() const;

    Control* container() const { return container_; }
    void setContainer(Control* frame) { container_ = frame; }

    const std::string& caption() const { return caption_; }
    void setCaption(const std::string& caption);
    bool visible() const { return visible_; }
    void setVisible(bool visible);
    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    bool locked() const { return locked_; }
    void setLocked(bool locked);
    Color backColor() const { return backColor_; }
    void setBackColor(Color color);
    Color foreColor() const { return foreColor_; }
    void setForeColor(Color color);
    const std::string& toolTipText() const { return toolTip_; }
    void setToolTipText(const std::string& tip);
    // 0 none, 1 a single line around the control.
    int borderStyle() const { return borderStyle_; }
    void setBorderStyle(int style);

    // Geometry in twips relative to the container, as the screens were drawn.
    int left() const { return left_; }
    int top() const { return top_; }
    int width() const { return width_; }
    int height() const { return height_; }
    void setLeft(int v);
    void setTop(int v);
    void setWidth(int v);
    void setHeight(int v);
    void setGeometry(int left, int top, int width, int height);

    // How the control follows a window made larger than designed: the
    // shares (0 to 1) of the window's extra width and height by which it
    // moves, relative to its container, and by which it grows. The designed
    // size is the smallest; nothing headless uses it.
    struct Stretch {
        double moveX = 0;
        double moveY = 0;
        double growWidth = 0;
        double growHeight = 0;
    };
    const Stretch& stretch() const { return stretch_; }
    void setStretch(const Stretch& stretch);

    int tabIndex() const { return tabIndex_; }
    void setTabIndex(int index);
    // Whether the Tab key stops here; spin buttons and shown-only fields don't.
    bool tabStop() const { return tabStop_; }
    void setTabStop(bool on) { tabStop_ = on; }

    const Font& font() const { return font_; }
    void setFont(const Font& font);

    // Asks the window to put the keyboard focus here; nothing headless.
    void setFocus() { notify(Prop::Focus); }

    std::function<void()> onClick;
    std::function<void()> onDblClick;

    // What a person's click does: a check box toggles, an option is selected.
    virtual void click();
    void dblClick();

    void setObserver(ControlObserver* observer) { observer_ = observer; }
    ControlObserver* observer() const { return observer_; }

protected:
    void notify(Prop prop);
    void raise(const std::function<void()>& handler) const;

private:
    Form* form_;
    ControlKind kind_;
    std::string name_;
    int index_;
    Control* container_ = nullptr;
    ControlObserver* observer_ = nullptr;

    std::string caption_;
    bool visible_ = true;
    bool enabled_ = true;
    bool locked_ = false;
    Color backColor_ = colors::ButtonFace;
    Color foreColor_ = colors::ButtonText;
    std::string toolTip_;
    int borderStyle_ = 0;
    int left_ = 0, top_ = 0, width_ = 0, height_ = 0;
    Stretch stretch_;
    int tabIndex_ = 0;
    bool tabStop_ = true;
    Font font_;
};

}  // namespace vistrel
