// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/desktop/desktopclipboard.h"
#include "controls/desktop/desktopshell.h"
#include "support/testregistry.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Stands for the programs of the desktop.
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
    void clipboard();

private:
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
    QTest::newRow("nobody opens it") << u"zephira-test://x"_s
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
