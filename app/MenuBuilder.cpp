#include "MenuBuilder.h"

#include "TextConversion.h"

namespace vistrel::qt {

namespace {

bool isSeparator(const Menu& menu)
{
    return menu.caption() == "-";
}

}  // namespace

MenuBinding::MenuBinding(Menu& menu, QAction* action, QMenu* dropDown)
    : menu_(menu), action_(action), dropDown_(dropDown)
{
    action->setObjectName(QString::fromStdString(menu.fullName()));
    menu.setObserver(this);
    if (dropDown) {
        // Opening a menu raises its Click, where the screens tick entries.
        connect(dropDown, &QMenu::aboutToShow, this, [this] { menu_.click(); });
    } else {
        connect(action, &QAction::triggered, this, [this] {
            menu_.click();
            // Qt ticks a checkable entry itself; the core decides.
            if (action_)
                action_->setChecked(menu_.checked());
        });
    }
}

MenuBinding::~MenuBinding()
{
    if (menu_.observer() == this)
        menu_.setObserver(nullptr);
}

void MenuBinding::applyAll()
{
    for (Prop p : {Prop::Caption, Prop::Visible, Prop::Enabled, Prop::Value})
        controlChanged(menu_, p);
}

void MenuBinding::controlChanged(Control& /*control*/, Prop prop)
{
    if (!action_)
        return;
    switch (prop) {
    case Prop::Caption:
        action_->setSeparator(isSeparator(menu_));
        if (!isSeparator(menu_)) {
            action_->setText(toWidgetLines(menu_.caption()));
            if (dropDown_)
                dropDown_->setTitle(toWidgetLines(menu_.caption()));
        }
        break;
    case Prop::Visible:
        action_->setVisible(menu_.visible());
        break;
    case Prop::Enabled:
        action_->setEnabled(menu_.enabled());
        break;
    case Prop::Value:
        if (menu_.checked())
            action_->setCheckable(true);
        action_->setChecked(menu_.checked());
        break;
    case Prop::ToolTipText:
        action_->setToolTip(toWidgetLines(menu_.toolTipText()));
        break;
    default:
        break;
    }
}

bool MenuBuilder::hasMenus(const std::vector<Control*>& controls)
{
    for (const Control* c : controls)
        if (c->kind() == ControlKind::Menu)
            return true;
    return false;
}

void MenuBuilder::build(const std::vector<Control*>& controls, QMenuBar* bar)
{
    std::vector<Menu*> menus;
    for (Control* c : controls)
        if (c->kind() == ControlKind::Menu)
            menus.push_back(static_cast<Menu*>(c));
    addEntries(menus, nullptr, bar);
    for (const auto& b : bindings_)
        b->applyAll();
}

void MenuBuilder::addEntries(const std::vector<Menu*>& menus, Menu* parent, QWidget* into)
{
    for (Menu* menu : menus) {
        if (menu->parentMenu() != parent)
            continue;
        bool hasEntries = false;
        for (const Menu* m : menus)
            hasEntries = hasEntries || m->parentMenu() == menu;
        if (hasEntries) {
            auto* dropDown = new QMenu(into);
            into->addAction(dropDown->menuAction());
            bindings_.push_back(std::make_unique<MenuBinding>(*menu, dropDown->menuAction(), dropDown));
            addEntries(menus, menu, dropDown);
        } else {
            auto* action = new QAction(into);
            into->addAction(action);
            bindings_.push_back(std::make_unique<MenuBinding>(*menu, action, nullptr));
        }
    }
}

MenuBinding* MenuBuilder::bindingFor(const Menu& menu) const
{
    for (const auto& b : bindings_)
        if (&b->menu() == &menu)
            return b.get();
    return nullptr;
}

}  // namespace vistrel::qt
