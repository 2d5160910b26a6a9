// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/libraries.h"
#include "support/testregistry.h"

#include <QRegularExpression>
#include <QTest>

#include <curl/curl.h>
#include <tidy/tidy.h>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstLibraries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versions();
    void namesAreDifferent();
    void theLibrariesSayTheSame();
    void report();

private:
    static QString versionOf(const QString &name);
};

QString TstLibraries::versionOf(const QString &name)
{
    const std::vector<Library> all = libraries();
    const auto found = std::ranges::find_if(all, [&](const Library &each) { return each.name == name; });
    return found == all.end() ? QString() : found->version;
}

void TstLibraries::versions()
{
    static const QRegularExpression version(u"^[0-9]+([.][0-9]+)+$"_s);
    const std::vector<Library> all = libraries();
    QCOMPARE(all.size(), 6U);
    for (const Library &library : all) {
        QVERIFY2(version.match(library.version).hasMatch(),
                 qPrintable(library.name.toString() + u' ' + library.version));
        QVERIFY(library.address.startsWith(u"https://"));
    }
}

void TstLibraries::namesAreDifferent()
{
    const std::vector<Library> all = libraries();
    QStringList labels;
    for (const Library &library : all)
        labels.append(library.label.toString());
    QCOMPARE(labels.removeDuplicates(), 0);
}

/// Those that can be asked have the version that was found when the program was built.
void TstLibraries::theLibrariesSayTheSame()
{
    QCOMPARE(versionOf(u"Qt"_s), QString::fromLatin1(qVersion()));
    QCOMPARE(versionOf(u"HTML Tidy"_s), QString::fromUtf8(tidyLibraryVersion()));
    QCOMPARE(versionOf(u"libcurl"_s), QString::fromUtf8(curl_version_info(CURLVERSION_NOW)->version));
}

void TstLibraries::report()
{
    const QStringList lines = versionReport(u"1.2.3"_s, u"XFCE (xcb)"_s).split(u'\n');
    QCOMPARE(lines.first(), u"Zephira 1.2.3"_s);
    const std::vector<Library> all = libraries();
    for (std::size_t i = 0; i < all.size(); ++i)
        QCOMPARE(lines.value(static_cast<qsizetype>(i) + 1), all[i].name.toString() + u' ' + all[i].version);
    QVERIFY(lines.value(7).contains(QSysInfo::kernelVersion()));
    QVERIFY(lines.value(7).endsWith(u", "_s + QSysInfo::currentCpuArchitecture()));
    QCOMPARE(lines.value(8), u"Desktop: XFCE (xcb)"_s);
    QCOMPARE(lines.size(), 10);
}

ZEPHIRA_TEST(TstLibraries)

#include "tst_libraries.moc"
