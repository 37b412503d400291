#pragma once

#include "core/screen/Controls.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

namespace vistrel::qt {

// One menu control: an action, and a drop-down menu when entries lie
// beneath it. A caption of "-" is a separator line.
class MenuBinding : public QObject, public ControlObserver {
    Q_OBJECT
public:
    MenuBinding(Menu& menu, QAction* action, QMenu* dropDown);
    ~MenuBinding() override;

    Menu& menu() const { return menu_; }
    QAction* action() const { return action_; }
    QMenu* dropDown() const { return dropDown_; }

    void controlChanged(Control& control, Prop prop) override;
    void applyAll();

private:
    Menu& menu_;
    QPointer<QAction> action_;
    QPointer<QMenu> dropDown_;
};

// Builds the menu bar of a screen from its menu controls: those without a
// parent menu are the bar's entries, in the order the screen declares them.
class MenuBuilder {
public:
    MenuBuilder() = default;
    MenuBuilder(const MenuBuilder&) = delete;
    MenuBuilder& operator=(const MenuBuilder&) = delete;

    // True when the screen has menu controls at all.
    static bool hasMenus(const std::vector<Control*>& controls);

    void build(const std::vector<Control*>& controls, QMenuBar* bar);

    const std::vector<std::unique_ptr<MenuBinding>>& bindings() const { return bindings_; }
    MenuBinding* bindingFor(const Menu& menu) const;

private:
    void addEntries(const std::vector<Menu*>& menus, Menu* parent, QWidget* into);

    std::vector<std::unique_ptr<MenuBinding>> bindings_;
};

}  // namespace vistrel::qt
