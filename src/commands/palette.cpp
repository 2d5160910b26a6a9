// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/palette.h"

#include "commands/icons.h"
#include "commands/palettetable.h"
#include "widgets/tabstrip.h"

#include <QAction>
#include <QActionEvent>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView selectorKey = u"selector";

} // namespace

/// A toolbar of the palette. Its actions exist from the start, which is cheap; the buttons that show them, and the
/// icons, are made when the toolbar is first shown.
class PaletteBar : public QToolBar
{
public:
    PaletteBar(const PaletteToolbar &table, QWidget *parent)
        : QToolBar(table.caption.toString(), parent), m_table(table)
    {
        setIconSize({22, 22});
        setMovable(false);
    }

    /// A box placed after the buttons. Until those are made, it is an invisible child of the toolbar.
    void setBox(QWidget *box)
    {
        m_box = box;
        box->setParent(this);
        if (m_isBuilt)
            addWidget(box);
    }

    void setVisible(bool visible) override
    {
        if (visible)
            build();
        QToolBar::setVisible(visible);
    }

protected:
    void actionEvent(QActionEvent *event) override
    {
        if (m_isBuilt)
            QToolBar::actionEvent(event);
    }

private:
    void build()
    {
        if (m_isBuilt)
            return;
        m_isBuilt = true;
        std::size_t row = 0;
        const QList<QAction *> all = actions();
        for (QAction *action : all) {
            const QStringView icon = m_table.buttons[row++].icon;
            setCommandIcon(action, icon);
            QActionEvent added(QEvent::ActionAdded, action);
            QToolBar::actionEvent(&added);
            if (auto *button = qobject_cast<QToolButton *>(widgetForAction(action))) {
                button->setAccessibleName(action->text());
                if (action->menu())
                    button->setPopupMode(QToolButton::InstantPopup);
            }
        }
        if (m_box)
            addWidget(m_box);
    }

    const PaletteToolbar &m_table;
    QWidget *m_box = nullptr;
    bool m_isBuilt = false;
};

Palette::Palette(QWidget *parent, Contents contents) : QWidget(parent), m_tabs(new TabStrip(this))
{
    m_tabs->setObjectName(u"toolpane"_s);
    m_tabs->setAccessibleName(u"Tool palette"_s);
    m_tabs->setDocumentMode(true);
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);

    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_tabs);

    m_tabs->fill([this] {
        for (const PaletteToolbar &row : paletteToolbars())
            m_tabs->setTabData(m_tabs->addTab(row.caption.toString()), row.caption.toString());
    });
    addToolBar();
    if (contents == Contents::AtOnce)
        build();
    connect(m_tabs, &QTabBar::currentChanged, this, &Palette::showToolbar);
    connect(m_tabs, &QTabBar::tabBarClicked, this, [this](int index) {
        // A change of the tab is reported by its own signal.
        if (index == m_tabs->currentIndex())
            Q_EMIT tabClicked(index);
    });
}

void Palette::build()
{
    while (m_bars.size() < paletteToolbars().size())
        addToolBar();
}

void Palette::addToolBar()
{
    const int index = static_cast<int>(m_bars.size());
    PaletteBar *bar = new PaletteBar(paletteToolbars()[m_bars.size()], this);
    bar->setObjectName(u"Toolbar_%1"_s.arg(index));
    m_bars.push_back(bar);
    fill(index);
    bar->setVisible(index == 0);
    layout()->addWidget(bar);
}

void Palette::fill(int index)
{
    PaletteBar *bar = m_bars[static_cast<std::size_t>(index)];
    for (const QuickTag &tag : paletteToolbars()[static_cast<std::size_t>(index)].buttons) {
        QAction *action = new QAction(tag.label.toString(), bar);
        action->setSeparator(tag.kind == TagKind::Separator);
        action->setObjectName(tag.key);
        action->setToolTip(tag.label.toString());
        action->setCheckable(tag.kind == TagKind::Selector);
        bar->addAction(action);
        if (tag.kind == TagKind::Missing)
            markUnsupported(action);
        if (tag.kind == TagKind::Headings)
            addHeadings(action);
        else
            connect(action, &QAction::triggered, this, [this, &tag] { Q_EMIT clicked(tag); });
    }
}

void Palette::addHeadings(QAction *button)
{
    QMenu *menu = new QMenu(this);
    for (int size = 1; size <= 6; ++size) {
        QAction *entry = menu->addAction(u"Heading &%1"_s.arg(size));
        entry->setObjectName(u"H%1"_s.arg(size));
        connect(entry, &QAction::triggered, this, [this, size] { Q_EMIT headingClicked(size); });
    }
    button->setMenu(menu);
}

void Palette::showToolbar(int index)
{
    build();
    // A row with text alone would be lower than one with icons, and the layout would jump.
    m_bars[static_cast<std::size_t>(index)]->setMinimumHeight(m_bars[0]->sizeHint().height());
    for (std::size_t i = 0; i < m_bars.size(); ++i)
        m_bars[i]->setVisible(static_cast<int>(i) == index);
    Q_EMIT tabClicked(index);
}

QTabBar *Palette::tabs() const
{
    return m_tabs;
}

QToolBar *Palette::toolBar(int index) const
{
    return m_bars[static_cast<std::size_t>(index)];
}

QAction *Palette::action(int index, const QString &key) const
{
    return toolBar(index)->findChild<QAction *>(key);
}

void Palette::addBox(PaletteTab tab, QWidget *box)
{
    build();
    m_bars[static_cast<std::size_t>(tab)]->setBox(box);
}

bool Palette::isSelectorPressed() const
{
    constexpr auto bar = static_cast<std::size_t>(PaletteTab::Style);
    return m_bars.size() > bar && action(static_cast<int>(PaletteTab::Style), selectorKey.toString())->isChecked();
}

void Palette::setSelectorPressed(bool pressed)
{
    build();
    action(static_cast<int>(PaletteTab::Style), selectorKey.toString())->setChecked(pressed);
}

} // namespace zephira
