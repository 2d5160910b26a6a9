// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/formkit.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How to read and set the value of a class of controls.
struct ValueRule {
    bool (*fits)(const QObject *);
    QString (*read)(const QObject *);
    void (*write)(QObject *, const QString &);
};

template<typename T>
bool is(const QObject *object)
{
    return qobject_cast<const T *>(object) != nullptr;
}

bool isCheckable(const QObject *object)
{
    const auto *button = qobject_cast<const QAbstractButton *>(object);
    return button && button->isCheckable();
}

void choose(QComboBox *list, const QString &text)
{
    if (list->isEditable())
        list->setEditText(text);
    else if (const int index = list->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive); index >= 0)
        list->setCurrentIndex(index);
    else
        qFatal("%s has no entry \"%s\"", qPrintable(list->objectName()), qPrintable(text));
}

void turnTo(QTabWidget *pages, const QString &tab)
{
    for (int i = 0; i < pages->count(); ++i) {
        if (pages->tabText(i) == tab) {
            pages->setCurrentIndex(i);
            return;
        }
    }
    qFatal("%s has no tab \"%s\"", qPrintable(pages->objectName()), qPrintable(tab));
}

template<typename T>
T to(QObject *object)
{
    return static_cast<T>(object);
}

template<typename T>
T to(const QObject *object)
{
    return static_cast<T>(object);
}

const ValueRule valueRules[] = {
    {is<QLineEdit>, [](const QObject *o) { return to<const QLineEdit *>(o)->text(); },
     [](QObject *o, const QString &value) { to<QLineEdit *>(o)->setText(value); }},
    {is<QPlainTextEdit>, [](const QObject *o) { return to<const QPlainTextEdit *>(o)->toPlainText(); },
     [](QObject *o, const QString &value) { to<QPlainTextEdit *>(o)->setPlainText(value); }},
    {is<QTextEdit>, [](const QObject *o) { return to<const QTextEdit *>(o)->toPlainText(); },
     [](QObject *o, const QString &value) { to<QTextEdit *>(o)->setPlainText(value); }},
    {is<QComboBox>, [](const QObject *o) { return to<const QComboBox *>(o)->currentText(); },
     [](QObject *o, const QString &value) { choose(to<QComboBox *>(o), value); }},
    {is<QSpinBox>, [](const QObject *o) { return QString::number(to<const QSpinBox *>(o)->value()); },
     [](QObject *o, const QString &value) { to<QSpinBox *>(o)->setValue(value.toInt()); }},
    {is<QAbstractSlider>, [](const QObject *o) { return QString::number(to<const QAbstractSlider *>(o)->value()); },
     [](QObject *o, const QString &value) { to<QAbstractSlider *>(o)->setValue(value.toInt()); }},
    {is<QTabWidget>,
     [](const QObject *o) { return to<const QTabWidget *>(o)->tabText(to<const QTabWidget *>(o)->currentIndex()); },
     [](QObject *o, const QString &value) { turnTo(to<QTabWidget *>(o), value); }},
    {isCheckable, [](const QObject *o) { return to<const QAbstractButton *>(o)->isChecked() ? u"on"_s : u"off"_s; },
     [](QObject *o, const QString &value) {
         auto *button = to<QAbstractButton *>(o);
         if (button->isChecked() != (value == u"on"))
             button->click();
     }},
    {is<QAbstractButton>, [](const QObject *o) { return to<const QAbstractButton *>(o)->text(); }, nullptr},
    {is<QLabel>, [](const QObject *o) { return to<const QLabel *>(o)->text(); }, nullptr},
    {is<QGroupBox>, [](const QObject *o) { return to<const QGroupBox *>(o)->title(); }, nullptr},
    {is<QWidget>, [](const QObject *o) { return to<const QWidget *>(o)->windowTitle(); }, nullptr},
};

const ValueRule &ruleFor(const QObject *control)
{
    return *std::ranges::find_if(valueRules, [&](const ValueRule &rule) { return rule.fits(control); });
}

} // namespace

ModalGuard::ModalGuard(const QWidget *allowed) : m_allowed(allowed)
{
    connect(&m_timer, &QTimer::timeout, this, &ModalGuard::look);
    m_timer.start(20);
}

void ModalGuard::look()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal || modal == m_allowed)
        return;
    QString message = u"an unexpected modal window: %1 \"%2\""_s.arg(
        QString::fromLatin1(modal->metaObject()->className()), modal->windowTitle());
    if (const auto *box = qobject_cast<const QMessageBox *>(modal))
        message += u": "_s + box->text();
    if (onFailure)
        onFailure(message);
    else
        QTest::qFail(qPrintable(message), "the guard", 0);
    if (auto *dialog = qobject_cast<QDialog *>(modal))
        dialog->reject();
    else
        modal->close();
}

LivingForm::LivingForm(const FormCatalogue &catalogue, const QString &name, const AppContext &context)
    : m_form(catalogue.make(name, context, nullptr)), m_guard(m_form)
{
    if (!m_form)
        qFatal("there is no form %s in the catalogue", qPrintable(name));
    m_form->show();
    m_form->activateWindow();
    if (!QTest::qWaitForWindowActive(m_form))
        QTest::qFail("the form doesn't become active", "the form kit", 0);
}

LivingForm::~LivingForm()
{
    delete m_form.data();
}

QString LivingForm::value(const QString &name) const
{
    const QWidget &control = get<QWidget>(name);
    return ruleFor(&control).read(&control);
}

void LivingForm::set(const QString &name, const QString &value) const
{
    QWidget &control = get<QWidget>(name);
    const ValueRule &rule = ruleFor(&control);
    if (!rule.write)
        qFatal("%s can't be given a value", qPrintable(name));
    rule.write(&control, value);
}

void LivingForm::press(const QString &name) const
{
    QWidget &control = get<QWidget>(name);
    // The indicator of a check box is at its left end, where a click works in every style.
    QTest::mouseClick(&control, Qt::LeftButton, {}, isCheckable(&control) ? QPoint(8, control.height() / 2) : QPoint());
}

void LivingForm::type(const QString &name, const QString &text) const
{
    QWidget &control = get<QWidget>(name);
    control.setFocus();
    QTest::keyClick(&control, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&control, Qt::Key_Delete);
    QTest::keyClicks(&control, text);
}

void LivingForm::key(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QWidget *target = m_form->focusWidget() ? m_form->focusWidget() : m_form.data();
    QTest::keyClick(target, key, modifiers);
}

QString LivingForm::focus() const
{
    const QWidget *control = m_form->focusWidget();
    while (control && control->objectName().isEmpty())
        control = control->parentWidget();
    return control ? control->objectName() : QString();
}

QObject *LivingForm::find(const QString &name) const
{
    if (!m_form || m_form->objectName() == name)
        return m_form;
    return m_form->findChild<QObject *>(name);
}

void LivingForm::missing(const QString &name, const char *className) const
{
    qFatal("%s has no %s named %s", m_form ? qPrintable(m_form->objectName()) : "a closed form", className,
           qPrintable(name));
}

} // namespace zephira
