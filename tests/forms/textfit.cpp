// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/textfit.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QSizeGrip>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTabWidget>
#include <QTextDocument>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Rounding at scales such as 1.25 makes a text a pixel wider than the place that was reserved for it.
constexpr int rounding = 1;

/// For boxes that take any text: letters as high as they get.
const QString anyText = u"Ág"_s;

/// Controls that lie over each other on purpose.
struct LaidOver {
    QStringView one;
    QStringView other;
};

constexpr LaidOver laidOver[] = {
    // The number of the current file is written into the blanks of the count's text.
    {u"lbCount", u"Label2"},
    // The two dividers of the picture of frames cross each other.
    {u"H", u"V"},
};

bool isLaidOver(const QWidget &one, const QWidget &other)
{
    return std::ranges::any_of(laidOver, [&](const LaidOver &pair) {
        return (one.objectName() == pair.one && other.objectName() == pair.other)
            || (one.objectName() == pair.other && other.objectName() == pair.one);
    });
}

QString nameOf(const QWidget &widget)
{
    const QString name = widget.objectName();
    const QString className = QString::fromLatin1(widget.metaObject()->className());
    return name.isEmpty() ? className : className + u' ' + name;
}

using Texts = QList<ShownText>;

QSize sizeOf(const QWidget &widget, const QString &text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text);
}

void measureLabel(Texts &texts, const QLabel &label)
{
    if (label.text().isEmpty())
        return;
    QSize needs = label.sizeHint();
    if (label.wordWrap()) {
        needs = {label.minimumSizeHint().width(), label.heightForWidth(label.width())};
        const QStringList words = Qt::mightBeRichText(label.text()) ? QStringList() : label.text().split(u' ');
        for (const QString &word : words)
            needs.setWidth(std::max(needs.width(), sizeOf(label, word.trimmed()).width()));
    }
    texts.append({&label, label.text(), needs, label.rect()});
}

void measureButton(Texts &texts, const QAbstractButton &button)
{
    if (button.text().isEmpty())
        return;
    QStyleOptionButton option;
    option.initFrom(&button);
    const QStyle &style = *button.style();
    QSize needs = sizeOf(button, button.text());
    if (!button.icon().isNull())
        needs.rwidth() += button.iconSize().width() + 4;
    QRect room = button.rect();
    if (const auto *tool = qobject_cast<const QToolButton *>(&button)) {
        if (tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull())
            return;
        room.adjust(1, 1, -1, -1);
    } else if (qobject_cast<const QPushButton *>(&button)) {
        // A style's own margins may be larger than what a text needs, but never smaller than its frame.
        room = style.subElementRect(QStyle::SE_PushButtonContents, &option, &button);
    } else if (qobject_cast<const QCheckBox *>(&button)) {
        room = style.subElementRect(QStyle::SE_CheckBoxContents, &option, &button);
    } else if (qobject_cast<const QRadioButton *>(&button)) {
        room = style.subElementRect(QStyle::SE_RadioButtonContents, &option, &button);
    } else {
        needs = button.sizeHint();
    }
    texts.append({&button, button.text(), needs, room});
}

void measureGroup(Texts &texts, const QGroupBox &group)
{
    if (group.title().isEmpty())
        return;
    QStyleOptionGroupBox option;
    option.initFrom(&group);
    option.text = group.title();
    option.lineWidth = 1;
    option.textAlignment = Qt::AlignLeft;
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    if (group.isCheckable())
        option.subControls |= QStyle::SC_GroupBoxCheckBox;
    // The style makes the place as large as the title.
    const QRect place = group.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &group);
    texts.append({&group, group.title(), place.size(), place & group.rect()});
}

void measureTabs(Texts &texts, const QTabBar &bar)
{
    for (int i = 0; i < bar.count(); ++i) {
        if (bar.tabText(i).isEmpty() || !bar.isTabVisible(i))
            continue;
        QSize needs = sizeOf(bar, bar.tabText(i));
        if (!bar.tabIcon(i).isNull())
            needs.rwidth() += bar.iconSize().width();
        const QRect room = bar.tabRect(i);
        // Tabs at the side have upright captions, unless they are as wide as those.
        const bool upright = room.height() > room.width();
        texts.append({&bar, bar.tabText(i), upright ? needs.transposed() : needs, room});
    }
}

void measureHeadings(Texts &texts, const QHeaderView &header)
{
    if (!header.model() || header.orientation() != Qt::Horizontal)
        return;
    for (int i = 0; i < header.count(); ++i) {
        const QString heading = header.model()->headerData(i, Qt::Horizontal).toString();
        if (header.isSectionHidden(i) || heading.isEmpty())
            continue;
        texts.append({&header,
                      heading,
                      sizeOf(header, heading),
                      {header.sectionViewportPosition(i), 0, header.sectionSize(i), header.height()}});
    }
}

QRect editFieldOf(const QComboBox &list)
{
    QStyleOptionComboBox option;
    option.initFrom(&list);
    option.editable = list.isEditable();
    option.frame = list.hasFrame();
    option.iconSize = list.iconSize();
    return list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list);
}

void measureList(Texts &texts, const QComboBox &list)
{
    const QRect room = editFieldOf(list);
    if (list.isEditable()) {
        texts.append({&list, anyText, {0, list.fontMetrics().height()}, room});
        return;
    }
    QSize needs = sizeOf(list, QString(list.currentText()).replace(u'&', u"&&"_s));
    if (!list.itemIcon(list.currentIndex()).isNull())
        needs.rwidth() += list.iconSize().width() + 4;
    texts.append({&list, list.currentText(), needs, room});
}

void measureNumber(Texts &texts, const QSpinBox &box)
{
    const auto *line = box.findChild<QLineEdit *>();
    for (const int number : {box.minimum(), box.maximum()}) {
        const QString text =
            box.prefix() + box.locale().toString(number).remove(box.locale().groupSeparator()) + box.suffix();
        texts.append({&box, text, sizeOf(box, text), line ? line->geometry() : box.rect()});
    }
}

void measureLine(Texts &texts, const QLineEdit &line)
{
    texts.append({&line, anyText, {0, line.fontMetrics().height()}, line.rect()});
    if (!line.placeholderText().isEmpty())
        texts.append({&line, line.placeholderText(), sizeOf(line, line.placeholderText()), line.contentsRect()});
}

/// Whether a widget is one of the inner parts that Qt's own controls place as they like.
bool isInnerPart(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    return qobject_cast<const QAbstractScrollArea *>(parent) || qobject_cast<const QTabBar *>(parent)
        || qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent)
        || qobject_cast<const QLineEdit *>(parent) || qobject_cast<const QMainWindow *>(parent)
        || qobject_cast<const QTabWidget *>(parent) || qobject_cast<const QToolBar *>(parent)
        || qobject_cast<const QSizeGrip *>(&widget) || widget.objectName().startsWith(u"qt_"_s);
}

/// Whether a widget lies on a surface that can be scrolled to any of its parts.
bool isScrolled(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    const auto *area = parent ? qobject_cast<const QAbstractScrollArea *>(parent->parentWidget()) : nullptr;
    return area && area->viewport() == parent;
}

/// The faults of a form, each once.
class Faults
{
public:
    FormFindings found;

    void add(const QString &sentence)
    {
        if (!found.faults.contains(sentence))
            found.faults.append(sentence);
    }
};

void lookAtPlace(Faults &faults, const QWidget &widget)
{
    if (isInnerPart(widget) || isScrolled(widget))
        return;
    ++faults.found.looks;
    const QRect room = widget.parentWidget()->rect().adjusted(-rounding, -rounding, rounding, rounding);
    if (!room.contains(widget.geometry()))
        faults.add(u"%1 reaches beyond %2"_s.arg(nameOf(widget), nameOf(*widget.parentWidget())));
    const QList<QWidget *> siblings = widget.parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (const QWidget *other : siblings) {
        if (other == &widget || !other->isVisible() || other->isWindow() || isInnerPart(*other)
            || isLaidOver(widget, *other))
            continue;
        const QRect common = other->geometry() & widget.geometry();
        if (common.width() > rounding && common.height() > rounding)
            faults.add(u"%1 and %2 cover each other"_s.arg(std::min(nameOf(widget), nameOf(*other)),
                                                           std::max(nameOf(widget), nameOf(*other))));
    }
}

/// A bar whose arrows don't show has to have room for each tab.
void lookAtTabs(Faults &faults, const QTabBar &bar)
{
    const QList<QToolButton *> arrows = bar.findChildren<QToolButton *>(Qt::FindDirectChildrenOnly);
    const bool scrolls = std::ranges::any_of(arrows, &QWidget::isVisible);
    for (int i = 0; i < bar.count(); ++i) {
        if (!scrolls && bar.isTabVisible(i) && !bar.rect().adjusted(-2, -2, 2, 2).contains(bar.tabRect(i)))
            faults.add(u"%1 has no room for the tab \"%2\""_s.arg(nameOf(bar), bar.tabText(i)));
    }
}

QList<const QWidget *> shownWidgets(const QWidget &form)
{
    QList<const QWidget *> shown;
    const QList<QWidget *> widgets = form.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->isVisibleTo(&form) && widget->window() == form.window())
            shown.append(widget);
    }
    return shown;
}

template<typename Control>
bool measuredAs(Texts &texts, const QWidget &widget, void (*how)(Texts &, const Control &))
{
    const auto *control = qobject_cast<const Control *>(&widget);
    if (control)
        how(texts, *control);
    return control;
}

} // namespace

void withEachPage(QWidget &form, const std::function<void()> &look)
{
    look();
    const auto turn = [&](auto *pages) {
        const int before = pages->currentIndex();
        for (int i = 0; i < pages->count(); ++i) {
            if (i == before)
                continue;
            pages->setCurrentIndex(i);
            QApplication::processEvents();
            look();
        }
        pages->setCurrentIndex(before);
    };
    const QList<QTabWidget *> tabs = form.findChildren<QTabWidget *>();
    for (QTabWidget *pages : tabs)
        turn(pages);
    const QList<QStackedWidget *> stacks = form.findChildren<QStackedWidget *>();
    for (QStackedWidget *pages : stacks) {
        if (!qobject_cast<QTabWidget *>(pages->parentWidget()))
            turn(pages);
    }
}

QList<ShownText> shownTexts(const QWidget &form)
{
    Texts texts;
    const QList<const QWidget *> widgets = shownWidgets(form);
    for (const QWidget *widget : widgets) {
        measuredAs(texts, *widget, measureLabel) || measuredAs(texts, *widget, measureButton)
            || measuredAs(texts, *widget, measureGroup) || measuredAs(texts, *widget, measureTabs)
            || measuredAs(texts, *widget, measureHeadings) || measuredAs(texts, *widget, measureList)
            || measuredAs(texts, *widget, measureNumber) || measuredAs(texts, *widget, measureLine);
    }
    return texts;
}

FormFindings cutTexts(const QWidget &form)
{
    Faults faults;
    const QList<const QWidget *> widgets = shownWidgets(form);
    for (const QWidget *widget : widgets) {
        lookAtPlace(faults, *widget);
        if (const auto *bar = qobject_cast<const QTabBar *>(widget))
            lookAtTabs(faults, *bar);
    }
    const QList<ShownText> texts = shownTexts(form);
    for (const ShownText &text : texts) {
        ++faults.found.looks;
        const QSize has = text.room.size() + QSize(rounding, rounding);
        if (text.needs.width() > has.width() || text.needs.height() > has.height())
            faults.add(u"%1 cuts \"%2\": it needs %3 x %4 and has %5 x %6"_s.arg(nameOf(*text.widget), text.text)
                           .arg(text.needs.width())
                           .arg(text.needs.height())
                           .arg(text.room.width())
                           .arg(text.room.height()));
    }
    return faults.found;
}

} // namespace zephira
