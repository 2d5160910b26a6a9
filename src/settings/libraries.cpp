// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/libraries.h"

#include <QStringList>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace zephira {

std::vector<Library> libraries()
{
    return {
        {u"lblQt", u"Windows and dialogs by", u"Qt", u"https://www.qt.io/", QString::fromLatin1(qVersion())},
        {u"lblWebEngine", u"Preview and visual editor show pages with", u"Qt WebEngine",
         u"https://doc.qt.io/qt-6/qtwebengine-index.html", QStringLiteral(ZEPHIRA_WEBENGINE_VERSION)},
        {u"lblQScintilla", u"The code view is based on", u"QScintilla",
         u"https://www.riverbankcomputing.com/software/qscintilla/", QStringLiteral(ZEPHIRA_QSCINTILLA_VERSION)},
        {u"lblTidy", u"Pages are checked with", u"HTML Tidy", u"https://www.html-tidy.org/",
         QStringLiteral(ZEPHIRA_TIDY_VERSION)},
        {u"lblHunspell", u"Spelling is checked with", u"Hunspell", u"https://hunspell.github.io/",
         QStringLiteral(ZEPHIRA_HUNSPELL_VERSION)},
        {u"lblCurl", u"The web viewer fetches pages with", u"libcurl", u"https://curl.se/libcurl/",
         QStringLiteral(ZEPHIRA_CURL_VERSION)},
    };
}

QString versionReport(const QString &version, const QString &desktop)
{
    QStringList lines{u"Zephira "_s + version};
    for (const Library &library : libraries())
        lines.append(library.name.toString() + u' ' + library.version);
    lines.append(QSysInfo::prettyProductName() + u", "_s + QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion()
                 + u", "_s + QSysInfo::currentCpuArchitecture());
    lines.append(u"Desktop: "_s + desktop);
    return lines.join(u'\n') + u'\n';
}

} // namespace zephira
