// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

// What a plug-in or a start wizard for Zephira is made of. This header is all that is needed besides Qt; it is also
// shipped, in the program folder as include/zephiraplugin.h. The help page "Write a plug-in in ten minutes" shows how
// it is used.
//
// A plug-in is a module hello.so in the folder "plugins" of the program folder, a start wizard one in the folder
// "wizards". The program loads it with QPluginLoader and asks it for the object "hello.Main"; the part before the dot
// is the file's name up to its first dot. The program gives the object nothing, neither the document nor a window. It
// only reads the object's members, by their names: a plug-in's are those of ZephiraPlugin, a wizard's those of
// ZephiraWizard. An object with properties or invokable functions of these names is as good as one of these classes.
//
// Of each run and each look at the names the program makes an object of its own, and deletes it afterwards, unless it
// has a parent. All calls come from the program's main thread. A member that throws ends the run, and so does an object
// that deletes itself. Text is inserted as it is; its line ends are CR LF.

/// The interface name of the modules' metadata. The program doesn't insist on it.
#define ZephiraModule_iid "org.zephira.Module/1"

/// The numbers of the languages in the program's list, for Pluginlang and wizardlang.
namespace ZephiraLanguage {
enum Number {
    Unchanged = -1, ///< or any other number without a language: the document keeps its language; not for a wizard
    Text = 0,
    Html = 1,
    CCpp = 2,
    Perl = 3,
    Xml = 4,
    Basic = 5,
    Pascal = 6,
    JavaScript = 7,
    StyleSheet = 8,
    Sql = 9,
};
}

/// The answers of PluginStart and WizardStart. Any other number means Done.
namespace ZephiraStart {
enum Answer {
    Done = 0,
    /// To be asked again, as often as it takes. In between the program handles its events, so windows of the module
    /// stay alive. A function that takes long should return this now and then, because the program stands still until
    /// it has returned.
    Working = 1,
};
}

/// The object of a module that the program loads. Give it Q_PLUGIN_METADATA(IID ZephiraModule_iid).
class ZephiraModule : public QObject
{
    Q_OBJECT

public:
    /// A new object of that name ("hello.Main"), or nullptr if the module has none of that name.
    Q_INVOKABLE virtual QObject *create(const QString &name) = 0;
};

/// The object of a plug-in.
class ZephiraPlugin : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString pluginId READ pluginId CONSTANT)
    Q_PROPERTY(QString pluginversion READ pluginversion CONSTANT)
    Q_PROPERTY(QString plugindescription READ plugindescription CONSTANT)
    Q_PROPERTY(QString strReturn READ strReturn)
    Q_PROPERTY(int Pluginlang READ Pluginlang)

public:
    /// The caption of the entry in the menu Plugins.
    virtual QString pluginId() const = 0;
    /// Version and description, which must be there, although they aren't shown.
    virtual QString pluginversion() const = 0;
    virtual QString plugindescription() const = 0;

    /// Called when the entry was chosen; see ZephiraStart.
    Q_INVOKABLE virtual int PluginStart() = 0;
    /// The text to insert behind the selection, read when PluginStart is done. An empty text changes nothing.
    virtual QString strReturn() const = 0;
    /// The document's language from then on; see ZephiraLanguage.
    virtual int Pluginlang() const = 0;
};

/// The object of a start wizard.
class ZephiraWizard : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString wizardid READ wizardid CONSTANT)
    Q_PROPERTY(QString strReturn READ strReturn)
    Q_PROPERTY(int wizardlang READ wizardlang)

public:
    /// The row's text on the tab Wizards of the start dialog.
    virtual QString wizardid() const = 0;

    /// Called when the row was chosen; see ZephiraStart.
    Q_INVOKABLE virtual int WizardStart() = 0;
    /// The text that replaces the document, read when WizardStart is done. With an empty text the start dialog stays
    /// open.
    virtual QString strReturn() const = 0;
    /// The document's language from then on; see ZephiraLanguage. With a number without a language the start dialog
    /// stays open over the new text.
    virtual int wizardlang() const = 0;
};
