// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/extensionfolder.h"
#include "plugins/extensionrun.h"
#include "plugins/extensionscan.h"
#include "support/scriptedprompts.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The help page about writing plug-ins, followed to the letter: its files are built by its commands, outside of the
/// source tree, against a program folder that has just been installed.
class TstOutsidePlugin final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ::umask(022);
        QProcess install;
        install.start(u"cmake"_s,
                      {u"--install"_s, QStringLiteral(ZEPHIRA_PLUGINS_BUILD), u"--component"_s, u"program"_s,
                       u"--prefix"_s, programFolder()});
        QVERIFY(install.waitForFinished());
        QVERIFY2(install.exitCode() == 0, install.readAllStandardError().constData());
        followThePage();
    }

    void whatIsInstalled()
    {
        for (const QString &file : {u"include/zephiraplugin.h"_s, u"plugins/filler.so"_s, u"wizards/article.so"_s,
                                    u"plugins/today.so"_s, u"wizards/letter.so"_s})
            QVERIFY2(QFile::exists(programFolder() + u'/' + file), qPrintable(file));
        QCOMPARE(QDir(programFolder() + u"/include"_s).entryList(QDir::Files), QStringList{u"zephiraplugin.h"_s});
    }

    void thePluginIsFound()
    {
        ExtensionFolder folder(pluginKind, programFolder());
        QStringList found;
        scanPlugins(
            folder, folder.fileNames(),
            [&found](const QString &caption, const QString &tag) { found.append(caption + u": "_s + tag); },
            [&found](const QString &text) { found.append(text); });
        QCOMPARE(found,
                 (QStringList{
                     u"Filler Text: filler.Main"_s,
                     u"Filler Text - %1 - Inserts a paragraph of filler text"_s.arg(QStringLiteral(ZEPHIRA_VERSION)),
                     u"Today's Date: today.Main"_s, u"Today's Date - 1.0 - Writes today's date"_s}));
    }

    void thePluginRuns()
    {
        QCOMPARE(run(pluginKind, u"today.Main"_s),
                 (QStringList{u"<time>"_s + QDate::currentDate().toString(Qt::ISODate) + u"</time>"_s, u"1"_s}));
    }

    void theWizardIsFoundAndRuns()
    {
        ExtensionFolder folder(wizardKind, programFolder());
        ScriptedPrompts prompts;
        QStringList rows;
        scanWizards(folder, folder.fileNames(), prompts,
                    [&rows](const QString &key, const QString &text) { rows.prepend(key + u'=' + text); });
        QCOMPARE(rows, (QStringList{u"letter=Letter"_s, u"article=Article Page"_s}));
        QCOMPARE(run(wizardKind, u"letter.Main"_s), (QStringList{u"Dear friend,\r\n\r\n"_s, u"0"_s}));
    }

    /// Each member that is read stands in the page's table.
    void thePageNamesAllMembers()
    {
        const QString page = readPage();
        for (const ExtensionKind &kind : {pluginKind, wizardKind}) {
            for (const char *member :
                 {kind.title, kind.version, kind.description, kind.start, kind.text, kind.language})
                QVERIFY2(!member || page.contains(u"<td><code>%1</code></td>"_s.arg(QString::fromLatin1(member))),
                         member);
        }
    }

private:
    QString home() const { return m_home.path(); }
    QString programFolder() const { return home() + u"/.local/share/zephira"_s; }

    static QString readPage()
    {
        QFile file(sourcePath(u"data/help/plugins.html"_s));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    /// Writes the files of the page; pieces of the same file follow one another. Then runs its commands.
    void followThePage()
    {
        static const QRegularExpression block(uR"re(<pre data-file="([\w.]+)">([^<]*)</pre>)re"_s);
        const QString project = home() + u"/my project"_s;
        QVERIFY(QDir().mkpath(project));
        QStringList files;
        const QString page = readPage();
        for (const QRegularExpressionMatch &match : block.globalMatch(page)) {
            QString text = match.captured(2);
            text.replace(u"&lt;"_s, u"<"_s).replace(u"&gt;"_s, u">"_s).replace(u"&amp;"_s, u"&"_s);
            files.append(match.captured(1));
            QFile file(project + u'/' + match.captured(1));
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Append));
            file.write(text.toUtf8());
        }
        QCOMPARE(
            files,
            (QStringList{u"today.cpp"_s, u"CMakeLists.txt"_s, u"commands"_s, u"letter.cpp"_s, u"CMakeLists.txt"_s}));
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home());
        environment.insert(u"CMAKE_GENERATOR"_s, u"Ninja"_s);
        shell.setProcessEnvironment(environment);
        shell.setWorkingDirectory(project);
        shell.setProcessChannelMode(QProcess::MergedChannels);
        shell.start(u"sh"_s, {u"-e"_s, u"commands"_s});
        QVERIFY(shell.waitForFinished(240'000));
        QVERIFY2(shell.exitStatus() == QProcess::NormalExit && shell.exitCode() == 0, shell.readAll().constData());
    }

    QStringList run(const ExtensionKind &kind, const QString &name) const
    {
        ExtensionFolder folder(kind, programFolder());
        QStringList delivered;
        ExtensionRun(folder).run(name,
                                 {.useText = [&delivered](const QString &text) { delivered.append(text); },
                                  .setLanguage = [&delivered](int row) { delivered.append(QString::number(row)); }});
        return delivered;
    }

    const QTemporaryDir m_home;
};

ZEPHIRA_TEST(TstOutsidePlugin)
#include "tst_outsideplugin.moc"
