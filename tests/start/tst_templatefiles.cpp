// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/templates.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"
#include "support/tidycomplaints.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString folder = sourcePath(u"data/templates/"_s);

QByteArray contentOf(const QString &file)
{
    QFile content(folder + file);
    return content.open(QIODevice::ReadOnly) ? content.readAll() : QByteArray();
}

/// The shipped files with that extension, also those that are there as the user's own.
QStringList filesWith(const QString &extension)
{
    QStringList names = QDir(folder).entryList({u"*."_s + extension}, QDir::Files);
    const QStringList custom = QDir(folder + u"custom"_s).entryList({u"*."_s + extension}, QDir::Files);
    for (const QString &name : custom)
        names.append(u"custom/"_s + name);
    return names;
}

/// A row for each of these files.
void addRows(const QStringList &files)
{
    QTest::addColumn<QString>("file");
    QVERIFY(!files.isEmpty());
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << file;
}

bool isFrameset(const QByteArray &page)
{
    return page.contains("<frameset");
}

/// The first group of every match.
QStringList captured(const QByteArray &text, const QString &pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator matches = QRegularExpression(pattern).globalMatch(QString::fromUtf8(text));
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

using Palette = std::map<QString, QColor>;

/// The colours that the style sheet gives names to, one palette for each ":root"; a later one changes an earlier one.
QList<Palette> palettesOf(const QByteArray &css)
{
    QList<Palette> palettes;
    const QStringList roots = captured(css, uR"(:root\s*\{([^}]*)\})"_s);
    for (const QString &root : roots) {
        Palette palette = palettes.isEmpty() ? Palette() : palettes.last();
        QRegularExpressionMatchIterator colours =
            QRegularExpression(u"--([a-z]+): (#[0-9a-f]{6});"_s).globalMatch(root);
        while (colours.hasNext()) {
            const QRegularExpressionMatch colour = colours.next();
            palette[colour.captured(1)] = QColor(colour.captured(2));
        }
        palettes.append(palette);
    }
    return palettes;
}

double luminance(const QColor &colour)
{
    const auto channel = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) + 0.0722 * channel(colour.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

/// What a program says about a file that it only checks; empty if it accepts the file.
QByteArray complaintsOf(const QString &program, const QString &option, const QString &file)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, {option, folder + file});
    if (!process.waitForFinished())
        return process.errorString().toUtf8();
    return process.exitCode() == 0 ? QByteArray() : process.readAll();
}

} // namespace

/// The files that the buttons of the start dialog put into the document.
class TstTemplateFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesAndButtonsBelongTogether();
    void plainText_data();
    void plainText();
    void validPage_data() { addRows(filesWith(u"html"_s)); }
    void validPage();
    void pageForAPhone_data();
    void pageForAPhone();
    void frames_data();
    void frames();
    void colours_data() { addRows(filesWith(u"css"_s) + filesWith(u"html"_s)); }
    void colours();
    void styleSheet_data() { addRows(filesWith(u"css"_s) + filesWith(u"html"_s)); }
    void styleSheet();
    void scripts();
    void whatTheCgiScriptAnswers();
    void tidyFindsMistakes();
};

void TstTemplateFiles::filesAndButtonsBelongTogether()
{
    QStringList named;
    for (const TemplateButton &button : templateButtons()) {
        if (!button.file.isEmpty())
            named.append(button.file.toString());
    }
    named.sort();
    QCOMPARE(named.size(), 31);
    QStringList shipped = QDir(folder).entryList(QDir::Files);
    shipped.sort();
    QCOMPARE(shipped, named);
}

void TstTemplateFiles::plainText_data()
{
    addRows(QDir(folder).entryList(QDir::Files));
}

/// Small, and as tidy as a file that an author would write.
void TstTemplateFiles::plainText()
{
    QFETCH(QString, file);
    const QByteArray content = contentOf(file);
    QVERIFY(content.size() < 2500);
    QVERIFY(content.endsWith('\n'));
    QVERIFY(!content.contains('\r'));
    QVERIFY(!content.contains('\t'));
    QVERIFY(!content.contains(" \n"));
    QVERIFY(std::ranges::all_of(content, [](char each) { return static_cast<unsigned char>(each) < 128; }));
    const QList<QByteArray> lines = content.split('\n');
    QVERIFY(std::ranges::all_of(lines, [](const QByteArray &line) { return line.size() <= 120; }));
}

void TstTemplateFiles::validPage()
{
    QFETCH(QString, file);
    const QByteArray page = contentOf(file);
    const QByteArray complaints = complaintsOfTidy(page);
    QVERIFY2(complaints.isEmpty(), complaints.constData());
    const QByteArray doctype = isFrameset(page) ? R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Frameset//EN")"
                                                  " \"http://www.w3.org/TR/html4/frameset.dtd\">\n"
                                                : "<!DOCTYPE html>\n";
    QVERIFY(page.startsWith(doctype + "<html lang=\"en\">\n"));
    QCOMPARE(captured(page, u"<title>([^<]+)</title>"_s).size(), 1);
    QCOMPARE(captured(page, u"charset=\"?(utf-8)\""_s).size(), 1);
    // A link within the page has its target.
    const QStringList anchors = captured(page, u"href=\"#([^\"]*)\""_s);
    const QStringList ids = captured(page, u"id=\"([^\"]*)\""_s);
    for (const QString &anchor : anchors)
        QVERIFY2(ids.contains(anchor), qPrintable(anchor));
}

void TstTemplateFiles::pageForAPhone_data()
{
    QStringList pages = filesWith(u"html"_s);
    pages.removeIf([](const QString &page) { return isFrameset(contentOf(page)); });
    addRows(pages);
}

void TstTemplateFiles::pageForAPhone()
{
    QFETCH(QString, file);
    const QByteArray page = contentOf(file);
    QVERIFY(page.contains(R"(<meta name="viewport" content="width=device-width, initial-scale=1">)"));
    // No width in absolute units that a phone doesn't have.
    QVERIFY(captured(page, u"(?<![a-z-])width: (\\d+(?:px|cm|rem|em))"_s).isEmpty());
}

void TstTemplateFiles::frames_data()
{
    QStringList pages;
    for (const TemplateButton &button : templateButtons()) {
        if (button.page == TemplatePage::Frames)
            pages.append(button.file.toString());
    }
    addRows(pages);
}

/// Whoever sees no frames gets links to the same pages.
void TstTemplateFiles::frames()
{
    QFETCH(QString, file);
    const QByteArray page = contentOf(file);
    QVERIFY(isFrameset(page));
    const QStringList pages = captured(page, u"<frame name=\"[a-z]+\" src=\"([^\"]+)\" title=\"[^\"]+\">"_s);
    QVERIFY(pages.size() >= 2);
    QCOMPARE(page.count("<frame "), pages.size());
    QCOMPARE(captured(page, u"<li><a href=\"([^\"]+)\""_s), pages);
    const QStringList names = captured(page, u"<frame name=\"([a-z]+)\""_s);
    const QStringList targets = captured(page, u"target=\"([a-z]+)\""_s);
    QVERIFY(!targets.isEmpty());
    for (const QString &target : targets)
        QVERIFY2(names.contains(target), qPrintable(target));
}

/// Every text stands out from its background by the 4.5:1 of the accessibility guidelines.
void TstTemplateFiles::colours()
{
    QFETCH(QString, file);
    const QByteArray content = contentOf(file);
    const QList<Palette> palettes = palettesOf(content);
    QVERIFY(!palettes.isEmpty() || !content.contains("var("));
    for (const Palette &palette : palettes) {
        for (const QString &text : {u"ink"_s, u"accent"_s, u"head"_s, u"link"_s, u"visited"_s, u"green"_s}) {
            if (!palette.contains(text))
                continue;
            const double onPaper = contrast(palette.at(text), palette.at(u"paper"_s));
            QVERIFY2(onPaper >= 4.5, qPrintable(u"%1 on paper: %2"_s.arg(text).arg(onPaper)));
        }
        if (palette.contains(u"shade"_s)) {
            const double onShade = contrast(palette.at(u"ink"_s), palette.at(u"shade"_s));
            QVERIFY2(onShade >= 4.5, qPrintable(u"ink on shade: %1"_s.arg(onShade)));
        }
    }
}

/// Names are given and used, braces are paired, and a rule consists of declarations.
void TstTemplateFiles::styleSheet()
{
    QFETCH(QString, file);
    QByteArray css = contentOf(file);
    if (file.endsWith(u".html"_s)) {
        const QStringList styles = captured(css, u"(?s)<style>(.*)</style>"_s);
        QVERIFY(styles.size() == 1 || !css.contains("<style"));
        css = styles.join(u'\n').toUtf8();
    }
    QCOMPARE(css.count('{'), css.count('}'));
    QCOMPARE(css.count("/*"), css.count("*/"));
    QStringList used = captured(css, u"var\\(--([a-z]+)\\)"_s);
    QStringList given = captured(css, u"--([a-z]+):"_s);
    used.removeDuplicates();
    given.removeDuplicates();
    used.sort();
    given.sort();
    QCOMPARE(used, given);
    static const QRegularExpression rule(u"(?s)[{]([^{}]*)[}]"_s);
    static const QRegularExpression declaration(u"^-{0,2}[a-z-]+: [^:;]+$"_s);
    static const QRegularExpression comment(u"(?s)/[*].*?[*]/"_s);
    QRegularExpressionMatchIterator rules = rule.globalMatch(QString::fromUtf8(css).remove(comment));
    while (rules.hasNext()) {
        const QString body = rules.next().captured(1).trimmed();
        QVERIFY2(body.endsWith(u';'), qPrintable(body));
        const QStringList declarations = body.chopped(1).split(u';');
        for (const QString &each : declarations)
            QVERIFY2(declaration.match(each.trimmed()).hasMatch(), qPrintable(each));
    }
}

void TstTemplateFiles::scripts()
{
    QCOMPARE(complaintsOf(u"perl"_s, u"-c"_s, u"cgi.cgi"_s), QByteArray());
    QCOMPARE(complaintsOf(u"node"_s, u"--check"_s, u"js.js"_s), QByteArray());
}

void TstTemplateFiles::whatTheCgiScriptAnswers()
{
    QProcess script;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QUERY_STRING"_s, u"town=Bath&name=Ann+%3CB%3E"_s);
    script.setProcessEnvironment(environment);
    script.start(u"perl"_s, {u"-w"_s, folder + u"cgi.cgi"_s});
    QVERIFY(script.waitForFinished());
    QCOMPARE(script.readAllStandardError(), QByteArray());
    const QByteArray answer = script.readAllStandardOutput();
    QVERIFY(answer.startsWith("Content-Type: text/html; charset=utf-8\r\n\r\n<!DOCTYPE html>\n"));
    QVERIFY2(answer.contains("<h1>Hello, Ann &lt;B&gt;!</h1>"), answer.constData());
    const QByteArray complaints = complaintsOfTidy(answer.mid(answer.indexOf("<!DOCTYPE")));
    QVERIFY2(complaints.isEmpty(), complaints.constData());
}

/// The check itself works.
void TstTemplateFiles::tidyFindsMistakes()
{
    QByteArray page = contentOf(u"blank.html"_s);
    QVERIFY(complaintsOfTidy(page).isEmpty());
    QVERIFY(complaintsOfTidy(QByteArray(page).replace("</title>", "")).contains("title"));
    QVERIFY(complaintsOfTidy(QByteArray(page).replace("<body>", "<body><center>x</center>")).contains("center"));
    QVERIFY(complaintsOfTidy(page.replace("<body>", "<body><p id=a><b id=a>x</p>")).contains("</b>"));
}

ZEPHIRA_TEST(TstTemplateFiles)

#include "tst_templatefiles.moc"
