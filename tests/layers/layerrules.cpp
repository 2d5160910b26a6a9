// SPDX-License-Identifier: GPL-3.0-or-later
#include "layers/layerrules.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A folder of the sources, and those that it may include, separated by blanks.
struct FolderRow {
    const char16_t *folder;
    const char16_t *below;
};

/// A pattern that only some folders or files may use.
struct Rule {
    /// Matched against the name after #include, or against the code.
    const char16_t *pattern;
    /// Beginnings of the paths that may use it, separated by blanks.
    const char16_t *allowed;
    const char16_t *sentence;
};

/// The folders that a folder may include besides itself. Each row names only folders of earlier rows, so there is no
/// circle.
constexpr FolderRow folderRows[] = {
    {u"core", u""},
    {u"files", u"core"},
    {u"syntax", u""},
    {u"widgets", u"core"},
    {u"editor", u"core files syntax widgets"},
    {u"web", u"core files widgets"},
    {u"desktop", u"core files widgets"},
    {u"tools", u"core files syntax"},
    {u"tags", u"core files widgets"},
    {u"panes", u"core files widgets"},
    {u"views", u"core files widgets"},
    {u"wizards", u"core files widgets"},
    {u"colour", u"core widgets"},
    {u"settings", u"core files widgets"},
    {u"ftp", u"core files widgets"},
    {u"document", u"core files"},
    {u"plugins", u"core widgets"},
    {u"start", u"core files plugins widgets"},
    {u"completion", u"core editor"},
    {u"problems", u"completion core editor tools widgets"},
    {u"assist", u"completion core files problems syntax widgets editor tools"},
    {u"search", u"core files widgets editor"},
    {u"commands", u"core tools views widgets document"},
    {u"handbook", u"core files editor ftp commands"},
    {u"app",
     u"core files syntax widgets editor problems assist search desktop colour tags panes views wizards settings tools ftp document plugins start commands handbook"},
};

constexpr Rule includeRules[] = {
    {uR"(^<Qsci/)", u"editor/", u"only editor includes QScintilla"},
    {uR"(^<(QWeb|QtWeb))", u"web/", u"only web includes the web engine"},
    {uR"(^<curl/)", u"views/fetch/", u"only the web viewer's fetch includes libcurl"},
    {uR"(^<tidy)", u"tools/", u"only the tools include tidy"},
    {uR"(^<(sys/socket|netdb|netinet/|arpa/))", u"ftp/net/", u"only the file transfer opens sockets"},
    {uR"(^<hunspell/)", u"tools/", u"only the speller includes hunspell"},
    {uR"(^<fontconfig/)", u"desktop/", u"only desktop includes fontconfig"},
};

constexpr Rule codeRules[] = {
    {uR"(\bQ(MessageBox|InputDialog|FileDialog|ColorDialog|FontDialog)\b)", u"desktop/",
     u"only desktop uses the dialog classes"},
    // Applications, event loops, menus and drags also have an exec(), which is allowed.
    {uR"((?<!application)(?<!loop)(?<!menu)(?<!drag)(?:\.|->|::|\b(?<!\.)(?<!->)(?<!::))exec\s*\()", u"desktop/",
     u"only the form opener runs a dialog"},
    {uR"(\bcatch\s*\(\s*(const\s+)?HandlerError\b)", u"core/errorstyles.", u"only the error styles catch errors"},
    // app/program.cpp creates the program's only store, and handbook/makehandbook.cpp is a tool of the build. The
    // transfer sends files of any size in blocks, while the store handles whole files, and the designer reads resources
    // that are compiled into it. Names, dates and folders may be used anywhere.
    {uR"((?<!include <)\b(QFile|QSaveFile|QTemporaryFile|QTemporaryDir|QLockFile|QSettings|DiskFileStore)\b(?!\s*::)|(?<![:\w])::open(at)?\s*\(|\bQFile\s*::\s*copy\b|\bmkstemp\b|\bfopen\s*\(|\bi?o?fstream\b)",
     u"files/ app/program.cpp handbook/makehandbook.cpp ftp/transferengine. web/designer/designerpage.cpp",
     u"only files opens files"},
    // Pictures are read from the bytes that the store gives. These readers and constructors open a file by its name; a
    // text rule can't see types, so that icons are the strictest: from an engine, a picture or another icon alone. The
    // program's own icon is compiled into it.
    {uR"((?<!include <)\bQ(Movie|SvgRenderer)\b|\bQImage(Reader|Writer)(\s+\w+)?\s*[({]\s*[^&\s])", u"",
     u"a picture is read from bytes"},
    {uR"(\bQIcon(\s+\w+)?[({]\s*(?!new\b|(m_)?(pixmap|icon)\b|const\b|[)}]|\w+(\s+\w|\s*&|\s*\)\s*>))|\baddFile\s*\()",
     u"app/program.cpp", u"an icon isn't read from a file"},
    {uR"(\bQ(Pixmap|Image|Picture)(\s+\w+)?[({]\s*([\w.]+\s*(\+|->|::)\s*)*(\w*(path|file|name)|u?_s)\s*[)},]|(pixmap|image|picture)\w*(\.|->)load\s*\()",
     u"", u"a picture is read from bytes"},
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

QStringList words(const char16_t *list)
{
    return QString::fromUtf16(list).split(u' ', Qt::SkipEmptyParts);
}

bool beginsWithOneOf(const QString &path, const char16_t *beginnings)
{
    return std::ranges::any_of(words(beginnings), [&](const QString &beginning) { return path.startsWith(beginning); });
}

/// The layer of a source file: the first folder of its path.
QString layerOf(const QString &path)
{
    return path.section(u'/', 0, 0);
}

/// The source files in each matching call or variable.
QStringList listedSources(const QString &cmake)
{
    static const QRegularExpression lists(
        uR"((?:zephira_logic\(\w+|target_sources\(\w+_logic\s+\w+|set\(\w+_LOGIC|list\(APPEND \w+_LOGIC)\s([^)]*)\))"_s);
    static const QRegularExpression blanks(uR"(\s+)"_s);
    QStringList sources;
    for (const QRegularExpressionMatch &match : lists.globalMatch(cmake))
        sources += match.captured(1).split(blanks, Qt::SkipEmptyParts);
    return sources;
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
        if (header.startsWith(u'"') && header.contains(u'/') && !mayInclude(layerOf(path), layerOf(header.mid(1))))
            result.append(
                report(path, line, u"%1 includes nothing of %2"_s.arg(layerOf(path), layerOf(header.mid(1)))));
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

/// Matches literals and comments.
const QRegularExpression &noCode()
{
    // Raw strings come before plain ones, and literals before comments, because the first alternative that matches
    // wins.
    static const QRegularExpression pattern(
        uR"re(R"(\w*)\((?:.|\n)*?\)\1"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])+'|//[^\n]*|/\*(?:.|\n)*?\*/)re"_s);
    return pattern;
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

QStringList folders()
{
    QStringList names;
    for (const FolderRow &row : folderRows)
        names.append(QString::fromUtf16(row.folder));
    return names;
}

QStringList foldersBelow(const QString &folder)
{
    const auto row =
        std::ranges::find(folderRows, folder, [](const FolderRow &each) { return QString::fromUtf16(each.folder); });
    return row == std::end(folderRows) ? QStringList() : words(row->below);
}

bool mayInclude(const QString &folder, const QString &other)
{
    return folder == other || foldersBelow(folder).contains(other);
}

QStringList linkViolations(const QString &path, const QString &cmake)
{
    static const QRegularExpression logic(uR"(zephira_logic\(\s*(\w+)\s([^)]*)\))"_s);
    static const QRegularExpression blanks(uR"(\s+)"_s);
    // The modules that wait for a connection or a page, or look words up, or check pages, are logic that also links a system library.
    static const QRegularExpression allowed(
        u"^(core|\\w+_logic|Threads::Threads|CURL::libcurl|hunspell|Tidy::tidy)$"_s);
    QStringList result;
    for (const QRegularExpressionMatch &match : logic.globalMatch(cmake)) {
        const QStringList libraries = match.captured(2).section(u"LINK"_s, 1).split(blanks, Qt::SkipEmptyParts);
        for (const QString &library : libraries) {
            if (match.captured(1) == u"core" || !library.contains(allowed))
                result.append(report(path, lineOf(cmake, match.capturedStart()),
                                     u"%1 doesn't link %2"_s.arg(match.captured(1), library)));
        }
    }
    return result;
}

QStringList violations(const QString &path, const QString &text, const Layers &layers)
{
    return shapeViolations(path, text) + includeViolations(path, text, layers) + codeViolations(path, text);
}

QString codeOf(const QString &text)
{
    QString code;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : noCode().globalMatch(text)) {
        code += QStringView(text).mid(end, match.capturedStart() - end);
        code += QString(match.captured().count(u'\n'), u'\n');
        end = match.capturedEnd();
    }
    return code + QStringView(text).mid(end).toString();
}

QStringList literalsOf(const QString &text)
{
    static const QRegularExpression include(uR"(^\s*#\s*include\s*$)"_s);
    QStringList literals;
    for (const QRegularExpressionMatch &match : noCode().globalMatch(text)) {
        const qsizetype line = text.lastIndexOf(u'\n', match.capturedStart()) + 1;
        const bool isComment = match.captured().startsWith(u'/');
        if (!isComment && !text.mid(line, match.capturedStart() - line).contains(include))
            literals.append(match.captured());
    }
    return literals;
}

} // namespace zephira
