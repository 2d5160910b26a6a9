// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/formcatalogue.h"
#include "forms/allforms.h"
#include "handbook/handbook.h"
#include "handbook/helptable.h"
#include "handbook/shippedkeys.h"
#include "support/testregistry.h"
#include "support/tidycomplaints.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <map>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString handbook = QStringLiteral(ZEPHIRA_HANDBOOK);
/// In bytes.
constexpr qint64 largestPicture = 15 * 1024;

QByteArray contentOf(const QString &name)
{
    QFile file(handbook + u'/' + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString textOf(const QString &name)
{
    return QString::fromUtf8(contentOf(name));
}

QStringList pagesIn(const QString &folder)
{
    return QDir(folder).entryList({u"*.html"_s}, QDir::Files, QDir::Name);
}

/// The windows of the table, with the files of their pages.
std::map<QString, QString> pagesOfWindows()
{
    std::map<QString, QString> pages;
    for (const HelpChapter &chapter : helpChapters()) {
        for (const HelpPage &page : chapter.pages) {
            if (!page.window.isEmpty() && page.parts.isEmpty())
                pages[page.window.toString()] = helpFile(page.name);
        }
    }
    return pages;
}

/// The values of an attribute in the page, in their order.
QStringList valuesOf(const QString &attribute, const QString &page)
{
    const QRegularExpression pattern(u"<[^<>]*\\s%1=\"([^\"]*)\""_s.arg(attribute));
    QStringList values;
    for (const QRegularExpressionMatch &match : pattern.globalMatch(page))
        values.append(match.captured(1));
    return values;
}

/// What doesn't exist of the page's links and pictures, and whether it reaches out into the web.
QStringList brokenLinks(const QString &name)
{
    const QString page = textOf(name);
    QStringList broken;
    const QStringList targets = valuesOf(u"href"_s, page) + valuesOf(u"src"_s, page);
    for (const QString &target : targets) {
        const QString file = target.section(u'#', 0, 0);
        const QString place = target.section(u'#', 1);
        if (target.contains(u':') || (!file.isEmpty() && !QFile::exists(handbook + u'/' + file)))
            broken.append(target);
        else if (!place.isEmpty() && !valuesOf(u"id"_s, file.isEmpty() ? page : textOf(file)).contains(place))
            broken.append(target);
    }
    return broken;
}

} // namespace

/// The finished handbook: it has a page for each window, and none of them is broken.
class TstHelpPages final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachFormHasAPage()
    {
        const std::map<QString, QString> pages = pagesOfWindows();
        const QStringList forms = allForms().names();
        QVERIFY(forms.size() > 40);
        for (const QString &form : forms) {
            QVERIFY2(pages.contains(form), qPrintable(form + u" has no page"_s));
            QVERIFY2(!textOf(pages.at(form)).isEmpty(), qPrintable(pages.at(form)));
        }
    }

    /// A page about a window, or a part of one, shows it. A form that can't be made yet needs no picture.
    void eachOfThemHasAPicture()
    {
        const QStringList forms = allForms().names();
        QStringList pictures;
        for (const HelpChapter &chapter : helpChapters()) {
            for (const HelpPage &page : chapter.pages) {
                const QString name = page.name.toString();
                const QString picture = u"pictures/%1.png"_s.arg(name);
                const QSize size = pictureSize(contentOf(picture));
                const QString window = page.window.toString();
                const bool isNeeded = forms.contains(window) || window == u"frmmain" || window.endsWith(u"Dialog");
                QVERIFY2(!isNeeded || !size.isEmpty(), qPrintable(name + u" has no picture"_s));
                QCOMPARE(textOf(helpFile(page.name)).contains(u"<img src=\"%1\""_s.arg(picture)), !size.isEmpty());
                if (!size.isEmpty())
                    pictures.append(name + u".png"_s);
            }
        }
        pictures.sort();
        QCOMPARE(QDir(handbook + u"/pictures"_s).entryList(QDir::Files, QDir::Name), pictures);
    }

    void picturesAreSmall()
    {
        const QFileInfoList pictures = QDir(handbook + u"/pictures"_s).entryInfoList(QDir::Files);
        QVERIFY(pictures.size() > 50);
        for (const QFileInfo &picture : pictures)
            QVERIFY2(picture.size() <= largestPicture, qPrintable(picture.fileName()));
    }

    void page_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList pages = pagesIn(handbook);
        QVERIFY(pages.size() > 60);
        for (const QString &page : pages)
            QTest::newRow(qPrintable(page)) << page;
    }

    void page()
    {
        QFETCH(QString, name);
        const QByteArray complaints = complaintsOfTidy(contentOf(name));
        QVERIFY2(complaints.isEmpty(), complaints.constData());
        const QStringList broken = brokenLinks(name);
        QVERIFY2(broken.isEmpty(), qPrintable(broken.join(u' ')));
        const QString text = textOf(name);
        QCOMPARE(text.count(u"<h1"), 1);
        QVERIFY(text.contains(u"<meta name=\"color-scheme\" content=\"light dark\">"));
        QVERIFY(!text.contains(u"<!-- "));
    }

    void contentsNameAllPages()
    {
        const QStringList linked = valuesOf(u"href"_s, textOf(u"index.html"_s));
        const QStringList pages = pagesIn(handbook);
        for (const QString &page : pages)
            QVERIFY2(linked.contains(page), qPrintable(page));
    }

    void allPagesAreInTheIndex()
    {
        const QString index = textOf(u"index.js"_s);
        QStringList pages = pagesIn(handbook);
        pages.removeOne(u"index.html"_s);
        for (const QString &page : std::as_const(pages))
            QVERIFY2(index.contains(u"[\"%1\",\""_s.arg(page)), qPrintable(page));
    }

    void thePageOfKeysIsMadeFromTheTables()
    {
        const QString page = textOf(u"keys.html"_s);
        QVERIFY(page.contains(keyTables(shippedKeys())));
        QVERIFY(page.contains(u"<tr><td><kbd>Ctrl+S</kbd></td><td>Save Document</td></tr>"));
    }

    /// The check itself isn't blind.
    void tidyFindsMistakes()
    {
        QVERIFY(complaintsOfTidy("<!DOCTYPE html><html lang=en><head><title>t</title></head><body><p>x</em></body>")
                    .contains("</em>"));
        QVERIFY(complaintsOfTidy(
                    "<!DOCTYPE html><html lang=\"en\"><head><title>t</title></head><body><p>x</p></body></html>")
                    .isEmpty());
    }
};

ZEPHIRA_TEST(TstHelpPages)

#include "tst_helppages.moc"
