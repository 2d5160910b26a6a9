// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/formnames.h"

#include "support/sourcefolder.h"

#include <QAccessible>
#include <QAction>
#include <QDirIterator>
#include <QFile>
#include <QLabel>
#include <QTabBar>
#include <QWidget>
#include <QXmlStreamReader>

#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The properties that hold a caption. A line edit has no caption: its text is a value.
constexpr std::array captionProperties{"text", "title", "windowTitle"};

bool hasCaption(const QString &className)
{
    static const QStringList valueClasses{u"QLineEdit"_s, u"QTextEdit"_s, u"QPlainTextEdit"_s};
    return !valueClasses.contains(className);
}

QString oneLine(QString caption)
{
    return caption.replace(u"\r\n"_s, u"\\n"_s).replace(u'\n', u"\\n"_s).replace(u'\t', u"\\t"_s);
}

QString captionOf(const QObject &object)
{
    if (!hasCaption(QString::fromLatin1(object.metaObject()->className())))
        return {};
    for (const char *property : captionProperties) {
        const QString caption = object.property(property).toString();
        if (!caption.isEmpty())
            return oneLine(caption);
    }
    return {};
}

/// Qt gives the parts of its own controls names with a common prefix.
bool isOurs(const QObject &object)
{
    const QString name = object.objectName();
    const bool isPart =
        qobject_cast<const QTabBar *>(object.parent()) || name.startsWith(u"qt_") || name.startsWith(u"_q_");
    return !name.isEmpty() && !isPart;
}

/// The form and every widget below it, each once, in the order of the focus chain; the widgets of separate windows
/// last.
QList<QWidget *> chain(const QWidget &form)
{
    QList<QWidget *> widgets{const_cast<QWidget *>(&form)};
    for (QWidget *next = form.nextInFocusChain(); next != &form; next = next->nextInFocusChain())
        widgets.append(next);
    const QList<QWidget *> all = form.findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (!widgets.contains(widget))
            widgets.append(widget);
    }
    return widgets;
}

QStringList duplicates(const QList<NamedControl> &controls, const QString &where)
{
    QStringList seen;
    QStringList result;
    for (const NamedControl &control : controls) {
        if (seen.contains(control.name))
            result.append(u"%1 stands twice in %2"_s.arg(control.name, where));
        seen.append(control.name);
    }
    return result;
}

const NamedControl *named(const QList<NamedControl> &controls, const QString &name)
{
    const auto found = std::ranges::find(controls, name, &NamedControl::name);
    return found == controls.end() ? nullptr : &*found;
}

} // namespace

QList<NamedControl> readFormNames(const QString &form)
{
    QFile file(sourcePath(u"tests/forms/names/"_s) + form + u".txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<NamedControl> controls;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        QStringList columns = line.split(u'\t');
        columns.resize(3);
        const bool madeByCode = columns[0].startsWith(u'+');
        controls.append({columns[0].mid(madeByCode ? 1 : 0), columns[1], columns[2], madeByCode});
    }
    return controls;
}

QString uiFileOf(const QString &form)
{
    QDirIterator files(sourcePath(u"src"_s), {form.toLower() + u".ui"_s}, QDir::Files, QDirIterator::Subdirectories);
    return files.hasNext() ? files.next() : QString();
}

QList<NamedControl> readUiFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<NamedControl> controls;
    QList<qsizetype> open;
    QString property;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        const bool isControl = xml.name() == u"widget" || xml.name() == u"action";
        if (token == QXmlStreamReader::StartElement && isControl) {
            open.append(controls.size());
            // An <action> element has no class attribute.
            const QString className = xml.attributes().value(u"class"_s).toString();
            controls.append(
                {xml.attributes().value(u"name"_s).toString(), className.isEmpty() ? u"QAction"_s : className, {}});
        } else if (token == QXmlStreamReader::EndElement && isControl) {
            open.removeLast();
        } else if (token == QXmlStreamReader::StartElement && xml.name() == u"item") {
            // The text of an item, as of a list entry, is no caption; but an item of a layout contains widgets.
            property.clear();
            open.append(-1);
        } else if (token == QXmlStreamReader::EndElement && xml.name() == u"item") {
            open.removeLast();
        } else if (token == QXmlStreamReader::StartElement && xml.name() == u"property") {
            property = xml.attributes().value(u"name"_s).toString();
        } else if (token == QXmlStreamReader::StartElement && xml.name() == u"attribute") {
            property.clear();
        } else if (token == QXmlStreamReader::StartElement && xml.name() == u"string" && !open.isEmpty()
                   && open.last() >= 0) {
            NamedControl &control = controls[open.last()];
            const bool isCaption = std::ranges::any_of(
                captionProperties, [&](const char *name) { return property == QLatin1StringView(name); });
            if (isCaption && hasCaption(control.className))
                control.caption = oneLine(xml.readElementText());
        }
    }
    return controls;
}

QList<NamedControl> livingControls(const QWidget &form)
{
    QList<NamedControl> controls;
    const auto add = [&](const QObject &object) {
        if (isOurs(object))
            controls.append(
                {object.objectName(), QString::fromLatin1(object.metaObject()->className()), captionOf(object)});
    };
    const QList<QWidget *> widgets = chain(form);
    for (const QWidget *widget : widgets)
        add(*widget);
    const QList<QAction *> actions = form.findChildren<QAction *>();
    for (const QAction *action : actions)
        add(*action);
    return controls;
}

QStringList tabOrder(const QWidget &form)
{
    QStringList names;
    const QList<QWidget *> widgets = chain(form);
    for (const QWidget *widget : widgets) {
        if (widget != &form && isOurs(*widget) && (widget->focusPolicy() & Qt::TabFocus) != 0)
            names.append(widget->objectName());
    }
    return names;
}

QString accessibleNameOf(const QWidget &control)
{
    if (!control.accessibleName().isEmpty())
        return control.accessibleName();
    const QList<QLabel *> labels = control.window()->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy() == &control && !label->text().isEmpty())
            return label->text();
    }
    const QString caption = captionOf(control);
    if (!caption.isEmpty())
        return caption;
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(&control));
    // A line edit without a label would report its content, which isn't a name.
    const bool isValue = !hasCaption(QString::fromLatin1(control.metaObject()->className()));
    return interface && !isValue ? interface->text(QAccessible::Name) : QString();
}

QStringList differencesFromUi(const QList<NamedControl> &list, const QList<NamedControl> &ui)
{
    QStringList result = duplicates(list, u"the list"_s) + duplicates(ui, u"the .ui file"_s);
    for (const NamedControl &control : list) {
        const NamedControl *found = named(ui, control.name);
        if (control.madeByCode && found)
            result.append(u"%1 is in the .ui file, though the list has it made by code"_s.arg(control.name));
        else if (!control.madeByCode && !found)
            result.append(u"%1 is missing in the .ui file"_s.arg(control.name));
        else if (found && found->className != control.className)
            result.append(u"%1 is a %2, not a %3"_s.arg(control.name, found->className, control.className));
        else if (found && found->caption != control.caption)
            result.append(u"%1 reads \"%2\", not \"%3\""_s.arg(control.name, found->caption, control.caption));
    }
    for (const NamedControl &control : ui) {
        if (!named(list, control.name))
            result.append(u"%1 of the .ui file isn't in the list"_s.arg(control.name));
    }
    return result;
}

QStringList differencesFromForm(const QList<NamedControl> &list, const QWidget &form)
{
    const QList<NamedControl> living = livingControls(form);
    QStringList result = duplicates(living, u"the form"_s);
    for (const NamedControl &control : list) {
        const NamedControl *found = named(living, control.name);
        const QObject *object = form.objectName() == control.name ? &form : form.findChild<QObject *>(control.name);
        if (!found || !object) {
            result.append(u"%1 is missing in the form"_s.arg(control.name));
            continue;
        }
        if (!object->inherits(control.className.toLatin1().constData()))
            result.append(u"%1 is a %2, not a %3"_s.arg(control.name, found->className, control.className));
        if (!control.caption.isEmpty() && found->caption != control.caption)
            result.append(u"%1 reads \"%2\", not \"%3\""_s.arg(control.name, found->caption, control.caption));
        const auto *widget = qobject_cast<const QWidget *>(object);
        if (widget && accessibleNameOf(*widget).isEmpty())
            result.append(u"%1 has no accessible name"_s.arg(control.name));
    }
    for (const NamedControl &control : living) {
        if (!named(list, control.name))
            result.append(u"%1 of the form isn't in the list"_s.arg(control.name));
    }
    QStringList order = tabOrder(form);
    order.removeIf([&](const QString &name) { return !named(list, name); });
    QStringList expected;
    for (const NamedControl &control : list) {
        if (order.contains(control.name))
            expected.append(control.name);
    }
    if (order != expected)
        result.append(u"the tab order is %1, not %2"_s.arg(order.join(u' '), expected.join(u' ')));
    return result;
}

QString formNamesText(const QWidget &form)
{
    const QList<NamedControl> ui = readUiFile(uiFileOf(form.objectName()));
    QString text;
    const QList<NamedControl> living = livingControls(form);
    for (const NamedControl &control : living) {
        const NamedControl *drawn = named(ui, control.name);
        const NamedControl &row = drawn ? *drawn : control;
        text += (drawn ? QString() : u"+"_s) + row.name + u'\t' + row.className + u'\t' + row.caption + u'\n';
    }
    return text;
}

} // namespace zephira
