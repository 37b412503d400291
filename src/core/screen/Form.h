#pragma once

#include "Registry.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace vistrel {

class Control;
class Station;
class Form;

class FormObserver {
public:
    virtual ~FormObserver() = default;
    virtual void formChanged(Form& form) = 0;  // shown, hidden, caption, size
};

// One screen: its named controls, variables and operations, created once
// for the whole run. The registry of names is what the driver and the
// window program use to reach the screen.
class Form {
public:
    Form(Station& station, std::string name);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    Station& station() const { return *station_; }
    const std::string& name() const { return name_; }

    // Registry.
    void adopt(Control& control);
    Control* control(const std::string& name, int index = -1) const;
    bool isControlArray(const std::string& name) const;
    const std::vector<Control*>& controls() const { return controls_; }
    void bindVar(const std::string& name, VarBinding binding);
    const VarBinding* variable(const std::string& name) const;
    void bindOp(const std::string& name, std::function<void()> op);
    const std::function<void()>* operation(const std::string& name) const;
    std::vector<std::string> operationNames() const;
    std::vector<std::string> variableNames() const;

    // Window.
    const std::string& caption() const { return caption_; }
    void setCaption(const std::string& caption);
    bool visible() const { return visible_; }
    int left() const { return left_; }
    int top() const { return top_; }
    int width() const { return width_; }
    int height() const { return height_; }
    void setGeometry(int left, int top, int width, int height);
    // How often the geometry was set, changed or not: a window made larger
    // by hand goes back to the set size at the next request.
    int geometryRequests() const { return geometryRequests_; }
    void setLeft(int v) { setGeometry(v, top_, width_, height_); }
    void setTop(int v) { setGeometry(left_, v, width_, height_); }
    void setWidth(int v) { setGeometry(left_, top_, v, height_); }
    void setHeight(int v) { setGeometry(left_, top_, width_, v); }
    bool modal() const { return modal_; }

    // Shows the screen: loads it the first time, then activates it. Modal
    // returns only when the screen has been hidden again.
    void show(bool modal = false);
    void hide();
    // The window's close box: the screen's own reaction, hiding by default.
    void closeBox();

    std::function<void()> onLoad;
    std::function<void()> onActivate;
    std::function<void()> onCloseBox;

    void setObserver(FormObserver* observer) { observer_ = observer; }

private:
    void notify();

    Station* station_;
    std::string name_;
    std::vector<Control*> controls_;
    std::map<std::string, Control*> byName_;
    std::map<std::string, bool> arrays_;
    std::map<std::string, VarBinding> vars_;
    std::map<std::string, std::function<void()>> ops_;
    FormObserver* observer_ = nullptr;

    std::string caption_;
    bool visible_ = false;
    int geometryRequests_ = 0;
    bool loaded_ = false;
    bool modal_ = false;
    int left_ = 0, top_ = 0, width_ = 0, height_ = 0;
};

}  // namespace vistrel
