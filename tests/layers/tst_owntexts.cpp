// SPDX-License-Identifier: GPL-3.0-or-later
#include "layers/layerrules.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// What of a file can reach the user: of a form its texts, of a source its literals, and all of what is installed.
QStringList textsOf(const QString &path, const QString &content)
{
    static const QRegularExpression formTexts(u"<string[^>]*>([^<]*)</string>"_s);
    if (path.endsWith(u".ui"_s)) {
        QStringList texts;
        for (const QRegularExpressionMatch &match : formTexts.globalMatch(content))
            texts.append(match.captured(1));
        return texts;
    }
    static const QRegularExpression source(u"\\.(h|cpp|js)$"_s);
    return path.contains(source) ? literalsOf(content) : QStringList{content};
}

/// Literals that nobody reads as English: names by which other programs ask.
const QStringList names{
    u"\"applyColourTable\""_s, // a step of the start
};

/// The places where a text spells "color" in the British way.
QStringList britishColors(const QString &path, const QString &content)
{
    QStringList found;
    const QStringList texts = textsOf(path, content);
    for (const QString &text : texts) {
        const qsizetype place = text.indexOf(u"colour"_s, 0, Qt::CaseInsensitive);
        if (place >= 0 && !names.contains(text))
            found.append(path + u": "_s + text.mid(qMax(place - 30, 0), 70).simplified());
    }
    return found;
}

} // namespace

/// The texts that the program shows are written in one kind of English.
class TstOwnTexts final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachTextSpellsColorAlike()
    {
        const QDir root(sourcePath({}));
        QStringList broken;
        QMap<QString, int> texts;
        for (const QString &folder : {u"src"_s, u"data"_s, u"packaging"_s}) {
            QDirIterator files(root.filePath(folder), QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                QFile file(files.next());
                // Folders, and functions.
                if (files.fileName() == u"CMakeLists.txt"_s || files.fileName() == u"startorder.txt"_s)
                    continue;
                QVERIFY(file.open(QIODevice::ReadOnly));
                // Some shipped files aren't UTF-8, which the word that is looked for doesn't mind.
                const QString content = QString::fromUtf8(file.readAll());
                broken += britishColors(root.relativeFilePath(file.fileName()), content);
                ++texts[folder];
            }
        }
        QVERIFY(texts[u"src"_s] > 500);
        QVERIFY(texts[u"data"_s] > 100);
        QVERIFY(texts[u"packaging"_s] > 3);
        QVERIFY2(broken.isEmpty(), qPrintable(broken.join(u'\n')));
    }

    void whatCountsAsText_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("found");
        const auto row = [](const char *name, const QString &path, const QString &content, const QString &found) {
            QTest::newRow(name) << path << content << found;
        };
        row("a tip", u"src/a.cpp"_s, u"{u\"c\", u\"Choose a Colour\"}"_s, u"src/a.cpp: \"Choose a Colour\""_s);
        row("a raw text", u"src/a.h"_s, u"uR\"(the\ncolour)\""_s, u"src/a.h: R\"(the colour)\""_s);
        row("American", u"src/a.cpp"_s, u"u\"Choose a Color\""_s, {});
        row("a comment", u"src/a.cpp"_s, u"// \"a colour\"\n/* 'colour' */"_s, {});
        row("an identifier", u"src/a.cpp"_s, u"setColour(u\"blue\")"_s, {});
        row("an included file", u"src/a.cpp"_s, u"#include \"colour/a.h\"\n#  include \"colour/b.h\"\n"_s, {});
        row("a step's name", u"src/a.cpp"_s, u"u\"applyColourTable\""_s, {});
        row("a page's message", u"src/a.js"_s, u"colour = 'no colour';"_s, u"src/a.js: 'no colour'"_s);
        row("a form's caption", u"src/a.ui"_s, u"<string notr=\"true\">Colour:</string>"_s, u"src/a.ui: Colour:"_s);
        row("a form's widget", u"src/a.ui"_s, u"<widget class=\"Colour\" name=\"colour\"><string>A</string>"_s, {});
        row("a help page", u"data/help/a.html"_s, u"<p>The colours"_s, u"data/help/a.html: <p>The colours"_s);
    }

    void whatCountsAsText()
    {
        QFETCH(QString, path);
        QFETCH(QString, content);
        QTEST(britishColors(path, content).join(u'\n'), "found");
    }

    void literalsAreWhatIsQuoted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("literals");
        QTest::newRow("none") << u"a; // \"b\"\nc"_s << QStringList{};
        QTest::newRow("strings") << u"a(\"b \\\" // c\", 'd')"_s << QStringList{u"\"b \\\" // c\""_s, u"'d'"_s};
        QTest::newRow("raw string") << u"a(uR\"x(b\n\" )\" c)x\"); d"_s << QStringList{u"R\"x(b\n\" )\" c)x\""_s};
        QTest::newRow("included") << u"#include \"a.h\"\nb(\"c\")"_s << QStringList{u"\"c\""_s};
    }

    void literalsAreWhatIsQuoted()
    {
        QFETCH(QString, text);
        QTEST(literalsOf(text), "literals");
    }
};

ZEPHIRA_TEST(TstOwnTexts)

#include "tst_owntexts.moc"
