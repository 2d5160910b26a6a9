// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktopclipboard.h"
#include "desktop/desktopshell.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Stands in for the programs of the desktop.
class UrlRecorder : public QObject
{
    Q_OBJECT

public:
    UrlRecorder()
    {
        for (const QString &scheme : {u"file"_s, u"https"_s})
            QDesktopServices::setUrlHandler(scheme, this, "record");
    }
    ~UrlRecorder() override
    {
        for (const QString &scheme : {u"file"_s, u"https"_s})
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QList<QUrl> opened;

public Q_SLOTS:
    void record(const QUrl &url) { opened.append(url); }
};

class TstDesktopShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openFile();
    void openAddress();
    void openFailures_data();
    void openFailures();
    void startWithArguments();
    void startFailures_data();
    void startFailures();
    void propertiesWithoutAFileManager();
    void propertiesOfNothing();
    void findWithoutAFileManager();
    void clipboard();

private:
    /// The visible window of that name.
    static QWidget *shownWindow(const QString &name)
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (window->objectName() == name && window->isVisible())
                return window;
        }
        return nullptr;
    }

    /// While an object of this class exists, no file manager can be reached over the message bus.
    struct NoMessageBus {
        const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
        const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
        NoMessageBus()
        {
            qunsetenv("DBUS_SESSION_BUS_ADDRESS");
            qputenv("XDG_RUNTIME_DIR", "/no/such/folder");
        }
        ~NoMessageBus()
        {
            if (!address.isNull())
                qputenv("DBUS_SESSION_BUS_ADDRESS", address);
            qputenv("XDG_RUNTIME_DIR", runtime);
        }
    };

    QTemporaryDir m_folder;
};

void TstDesktopShell::openFile()
{
    UrlRecorder desktop;
    const QString path = m_folder.filePath(u"a b#c%20.html"_s);
    QVERIFY(QFile(path).open(QIODevice::WriteOnly));
    QVERIFY(DesktopShell().open(path).ok());
    QCOMPARE(desktop.opened, QList<QUrl>{QUrl::fromLocalFile(path)});
    QCOMPARE(desktop.opened.value(0).toLocalFile(), path);
}

void TstDesktopShell::openAddress()
{
    UrlRecorder desktop;
    QVERIFY(DesktopShell().open(u"https://example.org/?a=1&b=%20"_s).ok());
    QCOMPARE(desktop.opened, QList<QUrl>{QUrl(u"https://example.org/?a=1&b=%20"_s)});
}

void TstDesktopShell::openFailures_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("empty") << u""_s << u"\"\" is neither a full path nor an address."_s;
    QTest::newRow("missing file") << u"/no/such/file"_s << u"/no/such/file can't be found."_s;
    QTest::newRow("no scheme") << u"example.org"_s << u"\"example.org\" is neither a full path nor an address."_s;
    QTest::newRow("drive") << u"C:/x"_s << u"\"C:/x\" is neither a full path nor an address."_s;
    QTest::newRow("no program for it") << u"zephira-test://x"_s
                                       << u"The desktop has no program that opens zephira-test://x."_s;
}

void TstDesktopShell::openFailures()
{
    QFETCH(QString, target);
    QFETCH(QString, sentence);
    const Result<void> opened = DesktopShell().open(target);
    QVERIFY(!opened.ok());
    QCOMPARE(opened.error().sentence, sentence);
}

void TstDesktopShell::startWithArguments()
{
    const QString program = m_folder.filePath(u"my program"_s);
    const QString out = m_folder.filePath(u"out"_s);
    QFile script(program);
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n{ pwd; printf '%s\\n' \"$2\" \"$3\"; } > \"$1.part\" && mv \"$1.part\" \"$1\"\n");
    script.close();
    QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));

    QVERIFY(DesktopShell().start(program, {out, u"two words"_s, u"$HOME; *"_s}).ok());
    QTRY_VERIFY(QFile::exists(out));
    QFile result(out);
    QVERIFY(result.open(QIODevice::ReadOnly));
    QCOMPARE(result.readAll(), QFile::encodeName(QDir::home().canonicalPath()) + "\ntwo words\n$HOME; *\n");
}

void TstDesktopShell::startFailures_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("bare name") << u"true"_s << u"\"true\" isn't the full path of a program."_s;
    QTest::newRow("missing") << u"/no/such/program"_s << u"The program /no/such/program can't be found."_s;
    QTest::newRow("folder") << u"/usr"_s << u"/usr isn't a program."_s;
    QTest::newRow("not executable") << u"/etc/passwd"_s << u"/etc/passwd isn't a program."_s;
}

void TstDesktopShell::startFailures()
{
    QFETCH(QString, program);
    QFETCH(QString, sentence);
    const Result<void> started = DesktopShell().start(program, {});
    QVERIFY(!started.ok());
    QCOMPARE(started.error().sentence, sentence);
}

void TstDesktopShell::propertiesWithoutAFileManager()
{
    const NoMessageBus none;
    const QString path = m_folder.filePath(u"<b>page.html"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("12345") == 5);
    file.close();
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    QVERIFY(DesktopShell().showProperties(path).ok());
    QWidget *window = shownWindow(u"fileProperties"_s);
    QVERIFY(window);
    QCOMPARE(window->windowTitle(), u"Properties of <b>page.html"_s);
    QStringList texts;
    const QList<QLabel *> labels = window->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (!label->accessibleName().isEmpty())
            texts.append(label->accessibleName() + u' ' + label->text());
    }
    QVERIFY(texts.contains(u"Name: <b>page.html"_s));
    QVERIFY(texts.contains(u"Folder: "_s + m_folder.path()));
    QVERIFY(texts.contains(u"Size: 5 bytes"_s));
    QVERIFY(texts.contains(u"Permissions: rw-r-----"_s));
    const QPointer<QWidget> guard = window;
    window->close();
    QTRY_VERIFY(!guard);
}

void TstDesktopShell::propertiesOfNothing()
{
    const Result<void> shown = DesktopShell().showProperties(u"/no/such/file"_s);
    QVERIFY(!shown);
    QCOMPARE(shown.error().sentence, u"/no/such/file can't be found."_s);
}

void TstDesktopShell::findWithoutAFileManager()
{
    const NoMessageBus none;
    QVERIFY(QDir(m_folder.path()).mkpath(u"tree/deep"_s));
    for (const QString &name : {u"tree/a.htm"_s, u"tree/deep/B.HTM"_s, u"tree/deep/c.txt"_s}) {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(DesktopShell().findFiles().ok());
    const QPointer<QWidget> window = shownWindow(u"findFiles"_s);
    QVERIFY(window);
    QCOMPARE(window->findChild<QLineEdit *>(u"folder"_s)->text(), QDir::homePath());
    window->findChild<QLineEdit *>(u"folder"_s)->setText(m_folder.filePath(u"tree"_s));
    window->findChild<QLineEdit *>(u"pattern"_s)->setText(u"*.htm"_s);
    auto *find = window->findChild<QPushButton *>(u"find"_s);
    find->click();
    QTRY_COMPARE(window->findChild<QLabel *>(u"state"_s)->text(), u"Done: 2 files"_s);
    QStringList found;
    auto *list = window->findChild<QListWidget *>(u"found"_s);
    for (int row = 0; row < list->count(); ++row)
        found.append(list->item(row)->text());
    found.sort();
    QCOMPARE(found, (QStringList{m_folder.filePath(u"tree/a.htm"_s), m_folder.filePath(u"tree/deep/B.HTM"_s)}));
    // A search can be stopped, and the next one starts from scratch.
    window->findChild<QLineEdit *>(u"folder"_s)->setText(u"/usr"_s);
    find->click();
    find->click();
    QVERIFY(window->findChild<QLabel *>(u"state"_s)->text().startsWith(u"Stopped: "_s));
    window->close();
    QTRY_VERIFY(!window);
}

void TstDesktopShell::clipboard()
{
    DesktopClipboard clipboard;
    clipboard.setText(u"<p>ä\r\n</p>"_s);
    QCOMPARE(clipboard.text(), u"<p>ä\r\n</p>"_s);
    clipboard.setText(u""_s);
    QCOMPARE(clipboard.text(), u""_s);
}

ZEPHIRA_TEST(TstDesktopShell)
#include "tst_desktopshell.moc"
