#pragma once

// What a volunteer would stumble over in a window's layout: a caption cut
// at its control's edge, or two controls lying over each other. Used by
// the window tests that open every screen.

#include "ButtonBindings.h"
#include "FormWindow.h"
#include "TextConversion.h"

#include "core/screen/Form.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStringList>

#include <set>
#include <string>

namespace vistrel::test {

namespace layout {

inline QString shown(const QString& caption)
{
    return qt::labelText(qt::toCore(caption));
}

// The room a check box or option button has for its caption.
inline QRect captionArea(const QAbstractButton* box)
{
    QStyleOptionButton option;
    option.initFrom(box);
    option.text = box->text();
    const bool radio = box->inherits("QRadioButton");
    return box->style()->subElementRect(
        radio ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents, &option, box);
}

// Each line of the caption, wrapped as the button wraps it, inside the
// button's frame, and no more lines than the button is high.
inline bool buttonCaptionFits(const QPushButton* button)
{
    if (button->text().trimmed().isEmpty())
        return true;
    QStyleOptionButton option;
    option.initFrom(button);
    const QRect area = button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
    const QFontMetrics metrics = button->fontMetrics();
    const auto width = [&](const QString& text) { return metrics.horizontalAdvance(shown(text)); };
    const QStringList lines = qt::wrapCaption(button->text(), width, area.width());
    // A short caption centred in a small button may use the margins.
    for (const QString& line : lines)
        if (width(line) > button->width() - 2)
            return false;
    // One line needs the height of its glyphs (a "+" in a spin button's half).
    if (lines.size() == 1)
        return metrics.tightBoundingRect(shown(lines.front())).height() <= button->height() - 2;
    return static_cast<int>(lines.size()) * metrics.height() <= button->height();
}

// A check box or option button: the words wrap (by the mirror boxes' own
// painting) within the height it has.
inline bool boxCaptionFits(const QAbstractButton* box)
{
    const QString words = box->text().simplified();
    if (words.isEmpty())
        return true;
    const QFontMetrics metrics = box->fontMetrics();
    const int available = captionArea(box).width();
    const auto width = [&](const QString& text) { return metrics.horizontalAdvance(shown(text)); };
    if (width(box->text()) <= available + 1)
        return true;
    const QStringList lines = qt::wrapCaption(words, width, available);
    for (const QString& line : lines)
        if (width(line) > available + 1)
            return false;
    return static_cast<int>(lines.size()) * metrics.height() <= box->height() + 1;
}

inline bool labelFits(const QLabel* label)
{
    const QString text = label->text();
    if (text.trimmed().isEmpty())
        return true;
    const QRect area = label->contentsRect().adjusted(label->margin(), label->margin(), -label->margin(), -label->margin());
    const int flags = static_cast<int>(label->alignment()) | (label->wordWrap() ? Qt::TextWordWrap : 0);
    const QRect needed = label->fontMetrics().boundingRect(area, flags, text);
    return needed.width() <= area.width() + 1 && needed.height() <= area.height() + 1;
}

inline bool titleFits(const QGroupBox* box)
{
    const int needed = box->fontMetrics().horizontalAdvance(box->title().trimmed());
    return box->title().trimmed().isEmpty() || needed <= box->width();
}

// A control drawn only as a line, or a blank label in the screen's own
// colour, lies over others without hiding them.
inline bool isDecoration(const QWidget* widget)
{
    const auto* label = qobject_cast<const QLabel*>(widget);
    return label && label->text().trimmed().isEmpty() && !label->autoFillBackground();
}

// Where a control draws, in its parent: a label its text (or all of it
// when it has a background of its own), a check box or option button its
// mark and caption, anything else all of it.
inline QRect drawnArea(const QWidget* widget)
{
    const QRect whole = widget->geometry();
    const QPoint origin = whole.topLeft();
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        if (label->autoFillBackground())
            return whole;
        const int flags = static_cast<int>(label->alignment()) | (label->wordWrap() ? Qt::TextWordWrap : 0);
        return label->fontMetrics().boundingRect(label->contentsRect(), flags, label->text()).translated(origin)
            & whole;
    }
    if (const auto* box = qobject_cast<const QAbstractButton*>(widget); box && !qobject_cast<const QPushButton*>(box)) {
        const QRect caption = captionArea(box);
        const int textWidth = box->fontMetrics().horizontalAdvance(shown(box->text()));
        const int right = textWidth <= caption.width() ? caption.left() + textWidth : caption.right();
        return QRect(0, 0, right + 1, widget->height()).translated(origin) & whole;
    }
    return whole;
}

}  // namespace layout

// The findings for the shown controls of a screen's window, one line each:
// "cut: Cmd_Y" or "over: A / B". Controls whose overlap
// the screen was drawn with are given in `allowedOverlaps` by name.
inline QStringList layoutFindings(const qt::FormWindow& window, const std::set<std::string>& allowedOverlaps = {})
{
    using namespace layout;
    QStringList findings;
    QWidget* top = window.window();
    std::vector<std::pair<const Control*, QWidget*>> shownControls;
    for (const Control* control : window.form().controls()) {
        QWidget* widget = window.widgetFor(*control);
        if (!widget || !widget->isVisibleTo(top) || widget->width() <= 0 || widget->height() <= 0)
            continue;
        shownControls.emplace_back(control, widget);
        bool fits = true;
        if (auto* button = qobject_cast<QPushButton*>(widget))
            fits = buttonCaptionFits(button);
        else if (auto* box = qobject_cast<QAbstractButton*>(widget))
            fits = boxCaptionFits(box);
        else if (auto* label = qobject_cast<QLabel*>(widget))
            fits = labelFits(label);
        else if (auto* group = qobject_cast<QGroupBox*>(widget))
            fits = titleFits(group);
        if (!fits)
            findings << QStringLiteral("cut: ") + QString::fromStdString(control->fullName());
    }
    for (size_t i = 0; i < shownControls.size(); ++i) {
        for (size_t j = i + 1; j < shownControls.size(); ++j) {
            auto [a, wa] = shownControls[i];
            auto [b, wb] = shownControls[j];
            if (wa->parentWidget() != wb->parentWidget() || isDecoration(wa) || isDecoration(wb))
                continue;
            if (allowedOverlaps.count(a->fullName()) || allowedOverlaps.count(b->fullName()))
                continue;
            // Touching edges, from rounding the designed places, are no overlap.
            const QRect common = drawnArea(wa).intersected(drawnArea(wb));
            if (common.width() > 1 && common.height() > 1)
                findings << QStringLiteral("over: %1 / %2")
                                .arg(QString::fromStdString(a->fullName()), QString::fromStdString(b->fullName()));
        }
    }
    return findings;
}

}  // namespace vistrel::test
