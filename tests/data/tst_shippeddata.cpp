// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/settings.h"
#include "files/iniconfiguration.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QFile>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString dataFolder = sourcePath(u"data/"_s);

QString shipped(const QString &section, const QString &key)
{
    return ReadIni(section, key, dataFolder + u"zephira.ini"_s);
}

/// The relative luminance of a colour number with red in the lowest byte.
double luminance(int colour)
{
    const auto channel = [](int value) {
        const double part = value / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour & 0xff) + 0.7152 * channel(colour >> 8 & 0xff)
        + 0.0722 * channel(colour >> 16 & 0xff);
}

double contrast(int a, int b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

} // namespace

/// The program doesn't start with an incomplete zephira.ini, so the shipped one is checked key by key.
class TstShippedData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void isTheTableOfSettings();
    void colourRows();
    void textIsReadable_data();
    void textIsReadable();
    void documentsArePresent_data();
    void documentsArePresent();
};

void TstShippedData::values_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    const char *rows[][3] = {
        {"Startup", "selprj", "1"},
        {"startup", "rootsel", "2"},
        {"options", "highlight", "1"},
        {"options", "linenumber", "1"},
        {"Options", "leftmargin", "1"},
        {"options", "whitespace", "0"},
        {"options", "selbounds", "0"},
        {"Font", "name", "Liberation Mono"},
        {"font", "size", "10"},
        {"font", "bold", "False"},
        {"font", "italic", "False"},
        {"font", "strikethrough", "False"},
        {"font", "underline", "False"},
        {"Paths", "IEPATH", ""},
        {"SERVER", "root", ""},
        {"Filters", "Filters",
         "*.vbs;*.asp;*.ini;*.log;*.txt;*.htm;*.html;*css;*.js;*.c;*.cpp;*.h;*.pl;*.cgi;*.xml;*.pas;*.bas;*.frm;*.vbp;"
         "*.gif;*.bmp;*.jpg;*.java;*.sql;*.png;*.svg;*.webp;*.jpeg;*.avif;*.ico;*.json;*.php;*.xhtml;*.md;*.woff2;"
         "*.mjs;*.ts"},
    };
    for (const auto &[section, key, value] : rows) {
        QTest::addRow("%s %s", section, key)
            << QString::fromLatin1(section) << QString::fromLatin1(key) << QString::fromLatin1(value);
    }
}

void TstShippedData::values()
{
    QFETCH(QString, section);
    QFETCH(QString, key);
    QTEST(shipped(section, key), "value");
}

void TstShippedData::isTheTableOfSettings()
{
    QStringList expected;
    for (const SettingRow &row : settingRows())
        expected.append(u"[%1] %2=%3"_s.arg(row.section.toLower(), row.key, row.shipped));
    QFile file(dataFolder + u"zephira.ini"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList found;
    QString section;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : lines) {
        if (line.startsWith(u'['))
            section = line.toLower();
        else if (!line.isEmpty() && !line.startsWith(u';'))
            found.append(section + u' ' + line);
    }
    // For each colour the file lists the foreground first.
    expected.sort();
    found.sort();
    QCOMPARE(found, expected);
}

void TstShippedData::colourRows()
{
    for (int row = 0; row < 18; ++row) {
        for (const QString &part : {u"bg"_s, u"fr"_s, u"fnt"_s}) {
            const QString key = u"clr%1%2"_s.arg(row).arg(part);
            bool converted = false;
            const int number = shipped(u"Colors"_s, key).toInt(&converted);
            QVERIFY2(converted, qPrintable(key));
            QVERIFY2(number >= -1 && number <= (part == u"fnt" ? 4 : 0xffffff), qPrintable(key));
        }
    }
}

void TstShippedData::textIsReadable_data()
{
    QTest::addColumn<int>("row");
    for (const int row : {0, 1, 5, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16})
        QTest::addRow("row %d", row) << row;
}

void TstShippedData::textIsReadable()
{
    QFETCH(int, row);
    constexpr double enough = 4.5;
    const auto colour = [](int of, const QString &part) {
        return shipped(u"Colors"_s, u"clr%1%2"_s.arg(of).arg(part)).toInt();
    };
    const int window = colour(17, u"fr"_s);
    const int back = colour(row, u"bg"_s);
    const int ground = back == -1 ? window : back;
    QVERIFY(contrast(colour(row, u"fr"_s), ground) >= enough);
    // Also on the highlighted line, which is visible behind rows without a background of their own.
    if (back == -1)
        QVERIFY(contrast(colour(row, u"fr"_s), colour(4, u"fr"_s)) >= enough);
}

void TstShippedData::documentsArePresent_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file : {"readme.txt", "help/index.html"})
        QTest::newRow(file) << QString::fromLatin1(file);
}

void TstShippedData::documentsArePresent()
{
    QFETCH(QString, file);
    QFile document(dataFolder + file);
    QVERIFY(document.open(QIODevice::ReadOnly));
    QVERIFY(document.size() > 100);
}

ZEPHIRA_TEST(TstShippedData)

#include "tst_shippeddata.moc"
