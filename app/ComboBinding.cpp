#include "ComboBinding.h"

#include "TextConversion.h"

#include <QLineEdit>

namespace vistrel::qt {

ComboBinding::ComboBinding(ComboBox& combo, QWidget* parent, const Metrics& metrics)
    : ControlBinding(combo, new QComboBox(parent), metrics), combo_(combo), box_(static_cast<QComboBox*>(widget()))
{
    box_->setEditable(true);
    box_->setInsertPolicy(QComboBox::NoInsert);
    connect(box_->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        combo_.setText(toCore(text));
        showText();
    });
    connect(box_, &QComboBox::activated, this, [this](int index) {
        if (index < 0 || index >= static_cast<int>(combo_.items().size()))
            return;
        combo_.setText(combo_.items()[static_cast<size_t>(index)]);
        combo_.click();
        showText();
    });
}

void ComboBinding::applyAllOwn()
{
    showItems();
    showText();
}

void ComboBinding::apply(Prop prop)
{
    switch (prop) {
    case Prop::List:
        showItems();
        showText();
        break;
    case Prop::Text:
        showText();
        break;
    case Prop::Locked:
        box_->lineEdit()->setReadOnly(control().locked());
        break;
    default:
        ControlBinding::apply(prop);
    }
}

void ComboBinding::showItems()
{
    Mirror mirror(*this);
    const QSignalBlocker block(box_);
    box_->clear();
    for (const std::string& item : combo_.items())
        box_->addItem(fromCore(item));
}

void ComboBinding::showText()
{
    Mirror mirror(*this);
    const QString text = fromCore(combo_.text());
    if (box_->currentText() == text)
        return;
    const QSignalBlocker block(box_);
    const int at = box_->findText(text, Qt::MatchExactly);
    if (at >= 0)
        box_->setCurrentIndex(at);
    box_->setEditText(text);
}

}  // namespace vistrel::qt
