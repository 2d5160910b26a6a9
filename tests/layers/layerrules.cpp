// SPDX-License-Identifier: GPL-3.0-or-later
#include "layers/layerrules.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A pattern that only some folders or files may use.
struct Rule {
    /// Matched against what stands behind #include, or against the code.
    const char16_t *pattern;
    /// Paths that begin so may use it; divided by blanks.
    const char16_t *allowed;
    const char16_t *sentence;
};

constexpr Rule includeRules[] = {
    {uR"(^<Qsci/)", u"editor/", u"only editor includes QScintilla"},
    {uR"(^<(QWeb|QtWeb))", u"web/", u"only web includes the web engine"},
    {uR"(^<curl/)", u"views/fetch/", u"only the web viewer's fetch includes libcurl"},
    {uR"(^<tidy)", u"tools/", u"only the tools include tidy"},
    {uR"(^<(sys/socket|netdb|netinet/|arpa/))", u"ftp/net/", u"only the file transfer opens sockets"},
    {uR"(^<hunspell/)", u"tools/", u"only the speller includes hunspell"},
    {uR"(^"app/)", u"app/", u"the folders below app include nothing of it"},
};

constexpr Rule codeRules[] = {
    {uR"(\bQ(MessageBox|InputDialog|FileDialog|ColorDialog|FontDialog)\b)", u"desktop/",
     u"only desktop uses the dialog classes"},
    // Programs, event loops, menus and drags have an exec() of their own, which is no dialog's.
    {uR"((?<!application)(?<!loop)(?<!menu)(?<!drag)(?:\.|->|::|\b(?<!\.)(?<!->)(?<!::))exec\s*\()", u"desktop/",
     u"only the form opener runs a dialog"},
};

constexpr auto guiModules = uR"(^<Qt(Widgets|Gui|Svg|PrintSupport|Network|DBus|WebEngine\w*|WebChannel)\b)";

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

qsizetype lineOf(const QString &text, qsizetype offset)
{
    return QStringView(text).left(offset).count(u'\n') + 1;
}

bool beginsWithOneOf(const QString &path, const char16_t *beginnings)
{
    const QStringList list = QString::fromUtf16(beginnings).split(u' ');
    return std::ranges::any_of(list, [&](const QString &beginning) { return path.startsWith(beginning); });
}

/// The blank-divided words of each call or variable that matches.
QStringList listedSources(const QString &cmake)
{
    static const QRegularExpression lists(
        uR"((?:zephira_logic\(\w+|target_sources\(\w+_logic\s+\w+|set\(\w+_LOGIC|list\(APPEND \w+_LOGIC)\s([^)]*)\))"_s);
    static const QRegularExpression blanks(uR"(\s+)"_s);
    QStringList words;
    for (const QRegularExpressionMatch &match : lists.globalMatch(cmake))
        words += match.captured(1).split(blanks, Qt::SkipEmptyParts);
    return words;
}

QString report(const QString &path, qsizetype line, const QString &sentence)
{
    return u"%1:%2: %3"_s.arg(path).arg(line).arg(sentence);
}

QStringList includeViolations(const QString &path, const QString &text, const Layers &layers)
{
    static const QRegularExpression includes(uR"(^\s*#\s*include\s*(\S+))"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression gui(QString::fromUtf16(guiModules));
    QStringList result;
    for (const QRegularExpressionMatch &match : includes.globalMatch(text)) {
        const QString header = match.captured(1);
        const qsizetype line = lineOf(text, match.capturedStart(1));
        for (const Rule &rule : includeRules) {
            if (header.contains(QRegularExpression(QString::fromUtf16(rule.pattern)))
                && !beginsWithOneOf(path, rule.allowed))
                result.append(report(path, line, QString::fromUtf16(rule.sentence)));
        }
        if (layers.logicFiles.contains(path) && header.contains(gui))
            result.append(report(path, line, u"logic includes no more than Qt Core"_s));
        const QString own = header.mid(1, header.size() - 2);
        if (layers.formHeaders.contains(own) && own.section(u'/', 0, -2) != path.section(u'/', 0, -2))
            result.append(report(path, line, u"no folder includes another one's form"_s));
    }
    return result;
}

QStringList codeViolations(const QString &path, const QString &text)
{
    const QString code = codeOf(text);
    QStringList result;
    for (const Rule &rule : codeRules) {
        const QRegularExpression pattern(QString::fromUtf16(rule.pattern), QRegularExpression::CaseInsensitiveOption);
        const QRegularExpressionMatch match = pattern.match(code);
        if (match.hasMatch() && !beginsWithOneOf(path, rule.allowed))
            result.append(report(path, lineOf(code, match.capturedStart()), QString::fromUtf16(rule.sentence)));
    }
    return result;
}

QStringList shapeViolations(const QString &path, const QString &text)
{
    QStringList result;
    if (!text.startsWith(u"// SPDX-License-Identifier: GPL-3.0-or-later\n"))
        result.append(report(path, 1, u"the first line names the licence"_s));
    if (path.endsWith(u".h") && !text.contains(u"\n#pragma once\n"))
        result.append(report(path, 1, u"a header is included once"_s));
    if (text.count(u'\n') > maximumLines)
        result.append(report(path, maximumLines + 1, u"no source has more than %1 lines"_s.arg(maximumLines)));
    return result;
}

} // namespace

Layers readLayers(const QString &sourceFolder)
{
    static const QRegularExpression topWidget(uR"re(<widget class="(\w+)")re"_s);
    Layers layers;
    const QDir root(sourceFolder);
    QDirIterator files(sourceFolder, {u"CMakeLists.txt"_s, u"*.cmake"_s, u"*.ui"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString folder = root.relativeFilePath(QFileInfo(file).path());
        if (!file.endsWith(u".ui")) {
            const QStringList sources = listedSources(contentOf(file));
            for (const QString &source : sources)
                layers.logicFiles.insert(QDir::cleanPath(folder + u'/' + source));
        } else if (const QString top = topWidget.match(contentOf(file)).captured(1);
                   top == u"QDialog" || top == u"QMainWindow") {
            layers.formHeaders.insert(folder + u'/' + QFileInfo(file).completeBaseName() + u".h"_s);
        }
    }
    return layers;
}

QStringList violations(const QString &path, const QString &text, const Layers &layers)
{
    return shapeViolations(path, text) + includeViolations(path, text, layers) + codeViolations(path, text);
}

QString codeOf(const QString &text)
{
    // Raw strings come before plain ones, and literals before comments: the first that matches at a place wins.
    static const QRegularExpression noCode(
        uR"re(R"(\w*)\((?:.|\n)*?\)\1"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])+'|//[^\n]*|/\*(?:.|\n)*?\*/)re"_s);
    QString code;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : noCode.globalMatch(text)) {
        code += QStringView(text).mid(end, match.capturedStart() - end);
        code += QString(match.captured().count(u'\n'), u'\n');
        end = match.capturedEnd();
    }
    return code + QStringView(text).mid(end).toString();
}

} // namespace zephira
