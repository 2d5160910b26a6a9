// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/localfiles.h"
#include "web/pageaddress.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A site with a page and a picture, a folder outside the site, and links from one into the other.
struct Site {
    QTemporaryDir folder;

    Site()
    {
        for (const QString &name : {u"site/page.html"_s, u"site/img/a.png"_s, u"site/sub/deep.html"_s,
                                    u"secret/key.txt"_s, u"site2/other.html"_s}) {
            QDir(folder.path()).mkpath(name.section(u'/', 0, -2));
            QFile file(path(name));
            if (!file.open(QIODevice::WriteOnly))
                qFatal("can't write %s", qPrintable(name));
        }
        QFile::link(path(u"secret/key.txt"_s), path(u"site/link.txt"_s));
        QFile::link(path(u"secret"_s), path(u"site/out"_s));
        QFile::link(path(u"site/img"_s), path(u"site/in"_s));
        QFile::link(path(u"site"_s), path(u"alias"_s));
    }

    QString path(const QString &name) const { return folder.path() + u'/' + name; }
    QUrl url(const QString &name) const { return QUrl::fromLocalFile(path(name)); }
};

} // namespace

class TstLocalFiles final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loading_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("itself") << u"site/page.html"_s << true;
        QTest::newRow("next to it") << u"site/img/a.png"_s << true;
        QTest::newRow("its folder") << u"site"_s << true;
        QTest::newRow("a link that stays within") << u"site/in/a.png"_s << true;
        QTest::newRow("up and down again") << u"site/img/../page.html"_s << true;
        QTest::newRow("outside") << u"secret/key.txt"_s << false;
        QTest::newRow("outside by dots") << u"site/../secret/key.txt"_s << false;
        QTest::newRow("outside by a link") << u"site/link.txt"_s << false;
        QTest::newRow("outside by a linked folder") << u"site/out/key.txt"_s << false;
        QTest::newRow("a folder whose name begins the same") << u"site2/other.html"_s << false;
        QTest::newRow("not there") << u"site/none.png"_s << false;
        QTest::newRow("the folder above") << u""_s << false;
    }

    void loading()
    {
        QFETCH(QString, file);
        const Site site;
        LocalFiles files;
        files.open(site.url(u"site/page.html"_s));
        QTEST(files.mayLoad(site.url(file)), "allowed"); // On the way there.
        files.shown(site.url(u"site/page.html"_s));
        QTEST(files.mayLoad(site.url(file)), "allowed");
        QVERIFY(!files.mayLoad(QUrl(u"file:///etc/passwd"_s)));
    }

    void projectFolders_data()
    {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("no project") << u""_s << u"site/img/a.png"_s << false;
        QTest::newRow("a page in the project") << u"site"_s << u"site/img/a.png"_s << true;
        QTest::newRow("by another name of it") << u"alias"_s << u"site/img/a.png"_s << true;
        QTest::newRow("a project with a separator") << u"site/"_s << u"site/img/a.png"_s << true;
        QTest::newRow("outside of it") << u"site"_s << u"secret/key.txt"_s << false;
        QTest::newRow("outside of it by a link") << u"site"_s << u"site/link.txt"_s << false;
        QTest::newRow("a project elsewhere") << u"secret"_s << u"site/img/a.png"_s << false;
        QTest::newRow("a project elsewhere, its file") << u"secret"_s << u"secret/key.txt"_s << false;
        QTest::newRow("a project that doesn't exist") << u"none"_s << u"site/img/a.png"_s << false;
        QTest::newRow("next to the page as always") << u"secret"_s << u"site/sub/deep.html"_s << true;
    }

    /// A page inside the project may load files from all of the project, such as "../css/s.css".
    void projectFolders()
    {
        QFETCH(QString, project);
        QFETCH(QString, file);
        const Site site;
        LocalFiles files;
        files.setProjectFolder(project.isEmpty() ? QString() : site.path(project));
        files.open(site.url(u"site/sub/deep.html"_s));
        QTEST(files.mayLoad(site.url(file)), "allowed");
        files.shown(site.url(u"site/sub/deep.html"_s));
        QTEST(files.mayLoad(site.url(file)), "allowed");
        // Without a project it is the page's own folder again.
        files.setProjectFolder({});
        files.open(site.url(u"site/sub/deep.html"_s));
        QVERIFY(!files.mayLoad(site.url(u"site/img/a.png"_s)));
    }

    void otherAddresses_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("allowed");
        for (const char *open : {"http://example.org/", "https://example.org/", "ws://example.org/", "data:text/html,x",
                                 "blob:x", "about:blank"})
            QTest::newRow(open) << QString::fromLatin1(open) << true;
        for (const char *closed : {"chrome://version", "qrc:/x", "view-source:http://example.org/",
                                   "ftp://example.org/", "mailto:a@b", "filesystem:http://x/"})
            QTest::newRow(closed) << QString::fromLatin1(closed) << false;
    }

    void otherAddresses()
    {
        QFETCH(QString, address);
        const LocalFiles files;
        QTEST(files.mayLoad(QUrl(address)), "allowed");
        QTEST(files.mayShow(QUrl(address)), "allowed");
    }

    void aPageOfTheWebGetsNoFile()
    {
        const Site site;
        LocalFiles files;
        files.open(site.url(u"site/page.html"_s));
        files.shown(site.url(u"site/page.html"_s));
        files.open(QUrl(u"http://example.org/"_s));
        files.shown(QUrl(u"http://example.org/"_s));
        QVERIFY(!files.mayLoad(site.url(u"site/page.html"_s)));
        files.shown(QUrl(u"data:text/html,x"_s));
        QVERIFY(!files.mayLoad(site.url(u"site/page.html"_s)));
    }

    void aFileOnAnotherMachineIsNone()
    {
        const Site site;
        LocalFiles files;
        files.open(site.url(u"site/page.html"_s));
        files.shown(site.url(u"site/page.html"_s));
        QUrl remote = site.url(u"site/page.html"_s);
        remote.setHost(u"example.org"_s);
        QVERIFY(!files.mayLoad(remote));
        QVERIFY(!files.mayShow(remote));
    }

    void pagesLeadOnlyWithinWhatWasOpened()
    {
        const Site site;
        LocalFiles files;
        files.open(site.url(u"site/page.html"_s));
        files.shown(site.url(u"site/page.html"_s));
        QVERIFY(files.mayShow(site.url(u"site/sub/deep.html"_s)));
        QVERIFY(!files.mayShow(site.url(u"secret/key.txt"_s)));
        // A page that is reached by a link has the rights of the page that was opened.
        files.shown(site.url(u"site/sub/deep.html"_s));
        QVERIFY(files.mayLoad(site.url(u"site/img/a.png"_s)));
        QVERIFY(files.mayShow(site.url(u"site/page.html"_s)));
        // A page that is opened later doesn't inherit the first page's rights, but going back is allowed.
        files.open(site.url(u"site2/other.html"_s));
        files.shown(site.url(u"site2/other.html"_s));
        QVERIFY(!files.mayLoad(site.url(u"site/img/a.png"_s)));
        QVERIFY(files.mayShow(site.url(u"site/page.html"_s)));
    }

    void aPageOpenedThroughALinkHasTheRealFolder()
    {
        const Site site;
        LocalFiles files;
        files.open(site.url(u"alias/page.html"_s));
        files.shown(site.url(u"alias/page.html"_s));
        QVERIFY(files.mayLoad(site.url(u"alias/img/a.png"_s)));
        QVERIFY(!files.mayLoad(site.url(u"alias/../secret/key.txt"_s)));
    }

    void thePageThatIsGoneToMayBeMissing()
    {
        const Site site;
        LocalFiles files;
        const QUrl missing = site.url(u"site/missing.html"_s);
        QVERIFY(!files.mayShow(missing));
        files.open(missing);
        QVERIFY(files.mayShow(missing));
        QVERIFY(!files.mayShow(site.url(u"secret/missing.html"_s)));
        files.shown(missing);
        QVERIFY(files.mayShow(missing)); // The engine may report the page before it asks.
        files.shown(site.url(u"site/page.html"_s));
        QVERIFY(!files.mayShow(missing));
    }

    void addresses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("address");
        QTest::newRow("file") << u"/site/page.html"_s << u"file:///site/page.html"_s;
        QTest::newRow("file with odd characters")
            << u"/site/50% off#1?.html"_s << u"file:///site/50%25 off%231%3F.html"_s;
        QTest::newRow("address") << u"https://example.org/a?b#c"_s << u"https://example.org/a?b#c"_s;
        QTest::newRow("host") << u" example.org/a "_s << u"http://example.org/a"_s;
        QTest::newRow("empty page") << u"about:blank"_s << u"about:blank"_s;
        QTest::newRow("nothing") << u" "_s << u"about:blank"_s;
        QTest::newRow("no address") << u"two words"_s << u"about:blank"_s;
    }

    void addresses()
    {
        QFETCH(QString, text);
        QTEST(pageAddress(text).toString(), "address");
    }
};

ZEPHIRA_TEST(TstLocalFiles)
#include "tst_localfiles.moc"
