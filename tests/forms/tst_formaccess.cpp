// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/modalformopener.h"
#include "forms/allforms.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// Of a long list, the first rows are enough.
constexpr int mostRows = 40;

QString described(QAccessibleInterface &control)
{
    const QObject *object = control.object();
    return u"role %1, %2 %3"_s.arg(control.role())
        .arg(object ? QString::fromLatin1(object->metaObject()->className()) : QString(),
             object ? object->objectName() : control.text(QAccessible::Value));
}

/// Whether the control is a part of another one, which speaks for it, or has one that does.
bool isPart(QAccessibleInterface &control)
{
    const auto *widget = qobject_cast<QWidget *>(control.object());
    if (widget && widget->focusProxy())
        return true;
    const QAccessibleInterface *parent = control.parent();
    return parent && (parent->role() == QAccessible::ComboBox || parent->role() == QAccessible::SpinBox);
}

/// Roles that tell nothing about what a control does.
bool isVague(QAccessible::Role role)
{
    return role == QAccessible::NoRole || role == QAccessible::Client || role == QAccessible::Window
        || role == QAccessible::Pane || role == QAccessible::Whitespace;
}

/// Walks the controls that assistive technology finds below this one. Returns the number of controls that a user can
/// work, and adds a sentence for each that has no name or a vague role.
int walk(QAccessibleInterface &control, QStringList &faults)
{
    int worked = 0;
    const QAccessible::State state = control.state();
    if (state.invisible)
        return 0;
    if (state.focusable && !isPart(control)) {
        ++worked;
        const bool isCell = control.role() == QAccessible::Cell || control.role() == QAccessible::ListItem
            || control.role() == QAccessible::TreeItem;
        if (!isCell && control.text(QAccessible::Name).trimmed().isEmpty())
            faults.append(u"no name: "_s + described(control));
        if (isVague(control.role()))
            faults.append(u"a vague role: "_s + described(control));
    }
    const bool hasRows = control.role() == QAccessible::List || control.role() == QAccessible::Tree
        || control.role() == QAccessible::Table;
    const int count = hasRows ? std::min(control.childCount(), mostRows) : control.childCount();
    for (int i = 0; i < count; ++i) {
        if (QAccessibleInterface *child = control.child(i))
            worked += walk(*child, faults);
    }
    return worked;
}

/// Whether Tab should stop at the control, itself and not one of its parts.
bool isStop(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    const bool part = qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent)
        || widget.focusProxy();
    if (part || !widget.isEnabled() || !(widget.focusPolicy() & Qt::TabFocus))
        return false;
    // Of the choices of a group, Tab reaches the chosen one, and the arrow keys the others.
    const auto *choice = qobject_cast<const QRadioButton *>(&widget);
    return !choice || choice->isChecked();
}

QString nameOf(const QWidget &widget)
{
    return QString::fromLatin1(widget.metaObject()->className()) + u' ' + widget.objectName();
}

/// The stops that Tab doesn't reach from the control that has the focus, and those at which it ends.
QStringList unreached(const QWidget &form)
{
    QSet<const QWidget *> reached;
    QStringList faults;
    const QList<QWidget *> widgets = form.findChildren<QWidget *>();
    const auto stops = std::ranges::count_if(widgets, [&](const QWidget *widget) {
        return widget->isVisible() && widget->window() == &form && isStop(*widget);
    });
    if (stops == 0)
        return {};
    for (qsizetype i = 0; i <= widgets.size(); ++i) {
        QWidget *focus = QApplication::focusWidget();
        if (!focus)
            return {u"nothing has the focus"_s};
        reached.insert(focus);
        // Each link of a text is a stop of its own.
        for (int links = 0; links < 4 && QApplication::focusWidget() == focus; ++links)
            QTest::keyClick(focus, Qt::Key_Tab);
        // Where Tab is typed, Control and Tab leave.
        if (QApplication::focusWidget() == focus)
            QTest::keyClick(focus, Qt::Key_Tab, Qt::ControlModifier);
        if (QApplication::focusWidget() == focus && stops > 1) {
            faults.append(u"Tab doesn't leave "_s + nameOf(*focus));
            break;
        }
    }
    for (const QWidget *widget : widgets) {
        if (widget->isVisible() && widget->window() == &form && isStop(*widget) && !reached.contains(widget))
            faults.append(u"Tab doesn't reach "_s + nameOf(*widget));
    }
    return faults;
}

} // namespace

/// The forms without eyes and without a mouse.
class TstFormAccess final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The walks find what they are to find; otherwise every form would pass.
    void faultsAreFound()
    {
        QDialog form;
        auto *layout = new QVBoxLayout(&form);
        auto *box = new QLineEdit;
        box->setObjectName(u"box"_s);
        layout->addWidget(box);
        auto *button = new QPushButton(u"Press"_s);
        button->setObjectName(u"button"_s);
        layout->addWidget(button);
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QStringList faults;
        QCOMPARE(walk(*QAccessible::queryAccessibleInterface(&form), faults), 2);
        QCOMPARE(faults, QStringList{u"no name: role 42, QLineEdit box"_s});
        box->setAccessibleName(u"A box"_s);
        faults.clear();
        walk(*QAccessible::queryAccessibleInterface(&form), faults);
        QCOMPARE(faults, QStringList());
        QCOMPARE(unreached(form), QStringList());
        auto *apart = new QPushButton(u"Apart"_s, &form);
        apart->setObjectName(u"apart"_s);
        apart->show();
        // Behind Tab's back: the chain leads past it.
        connect(qApp, &QApplication::focusChanged, &form, [&](QWidget *, QWidget *now) {
            if (now == apart)
                box->setFocus();
        });
        QCOMPARE(unreached(form), QStringList{u"Tab doesn't reach QPushButton apart"_s});
    }

    void haveNamesAndRoles_data() { addForms(); }
    void haveNamesAndRoles()
    {
        QFETCH(QString, form);
        const Shown shown(form);
        QAccessibleInterface *window = QAccessible::queryAccessibleInterface(shown.window);
        QVERIFY(window);
        QVERIFY2(!window->text(QAccessible::Name).isEmpty(), "the window has no name");
        QStringList faults;
        m_controls += walk(*window, faults);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void workByKeyboard_data() { addForms(); }
    void workByKeyboard()
    {
        QFETCH(QString, form);
        const Shown shown(form);
        const QStringList faults = unreached(*shown.window);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void areLeftByKeyboard_data() { addForms(); }
    void areLeftByKeyboard()
    {
        QFETCH(QString, form);
        const Shown shown(form);
        if (auto *window = qobject_cast<QMainWindow *>(shown.window.data())) {
            // It is left through the last entry of its first menu.
            QTest::keyClick(window, Qt::Key_F, Qt::AltModifier);
            QVERIFY(QApplication::activePopupWidget());
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Up);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        } else {
            QWidget *focus = shown.window->focusWidget();
            QTest::keyClick(focus ? focus : shown.window.data(), Qt::Key_Escape);
        }
        QVERIFY(!shown.window || !shown.window->isVisible());
    }

    void cleanupTestCase() { qInfo("%d controls", m_controls); }

private:
    /// A form as the program opens it.
    struct Shown {
        explicit Shown(const QString &form)
        {
            opener.setContext(world);
            opener.openModeless(form);
            window = opener.openForm(form);
            if (window)
                window->activateWindow();
            if (!window || !QTest::qWaitForWindowActive(window))
                qFatal("%s doesn't show", qPrintable(form));
        }
        ~Shown() { delete window; }
        Q_DISABLE_COPY_MOVE(Shown)

        TestContext world;
        const FormCatalogue catalogue = allForms();
        ModalFormOpener opener{catalogue, nullptr};
        QPointer<QWidget> window;
    };

    static void addForms()
    {
        QTest::addColumn<QString>("form");
        const QStringList names = allForms().names();
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << name;
    }

    int m_controls = 0;
};

ZEPHIRA_TEST(TstFormAccess)

#include "tst_formaccess.moc"
