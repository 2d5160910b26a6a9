// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/soakdesk.h"

#include "app/startprocedure.h"
#include "assist/abbreviations/emmetlibrary.h"
#include "colour/registerforms.h"
#include "ftp/registerforms.h"
#include "panes/registerforms.h"
#include "settings/registerforms.h"
#include "start/registerforms.h"
#include "support/diskfiles.h"
#include "support/sourcefolder.h"
#include "tags/registerforms.h"
#include "tools/realtidy.h"
#include "tools/registerforms.h"
#include "tools/spelling/registerspelling.h"
#include "views/registerforms.h"
#include "wizards/registerforms.h"

#include <QDir>
#include <QDirIterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

const QString executable = u"/opt/zephira/zephira"_s;

Result<AbbreviationEngine *> emmet()
{
    static EmmetLibrary library;
    return &library;
}

} // namespace

SoakDesk::SoakDesk(const QString &folder)
    : m_folder(folder)
    , m_recovery(folder + u"/recovery"_s, m_files, m_clock)
    , m_configuration(folder + u"/app/zephira.ini"_s)
    , m_spelling(m_files, m_settings, folder + u"/app"_s)
{
    copyData();
    writeDocuments();
    m_server.folders[u"/*.*"_s] = {foundFolder(u"pictures"_s), foundFile(u"index.html"_s, 120),
                                   foundFile(u"style.css"_s, 40)};
    m_server.files[u"/index.html"_s] = QByteArray(120, 'x');
    m_server.files[u"/style.css"_s] = QByteArray(40, 'y');
    registerForms();
    m_window =
        std::make_unique<frmmain>(WindowServices{.files = m_files,
                                                 .recovery = m_recovery,
                                                 .configuration = m_configuration,
                                                 .settings = m_settings,
                                                 .prompts = m_prompts,
                                                 .shell = m_shell,
                                                 .clipboard = m_clipboard,
                                                 .clock = m_clock,
                                                 .catalogue = m_catalogue,
                                                 .webViews = [this]() -> Result<WebViews *> { return &m_webViews; },
                                                 .spelling = m_spelling.check,
                                                 .appPath = folder + u"/app"_s,
                                                 .iniFile = m_configuration.file(),
                                                 .executable = executable,
                                                 .endProcess = [this] { m_ended = true; },
                                                 .hiddenParts = HiddenParts::AfterPicture,
                                                 .text = {.loadAbbreviations = emmet, .loadTidy = realTidy}});
}

void SoakDesk::open()
{
    runStartProcedure(*m_window, m_documents.front());
}

void SoakDesk::forgetRecords()
{
    m_shell.opened.clear();
    m_shell.started.clear();
    m_shell.properties.clear();
    m_server.log.clear();
    m_server.announcedBehind.clear();
    m_fileTypes.log.clear();
    m_spelling.speller.opened.clear();
    m_webViews.browser.calls.clear();
    m_webViews.designer.commands.clear();
    m_webViews.designer.runs.clear();
    m_webViews.designer.pasted.clear();
    m_webViews.designer.loaded.clear();
}

void SoakDesk::copyData() const
{
    const QDir source(sourcePath(u"data"_s));
    QDirIterator data(source.path(), QDir::Files, QDirIterator::Subdirectories);
    while (data.hasNext()) {
        const QString file = data.next();
        putFile(m_folder + u"/app/"_s + source.relativeFilePath(file), WindowBench::read(file));
    }
    putFile(m_folder + u"/app/deps/names.dic"_s, "p\nnbsp\n");
}

void SoakDesk::writeDocuments()
{
    QByteArray longPage =
        "<!DOCTYPE html>\r\n<html>\r\n<head><title>Long</title>\r\n<style>p { color: #a0c; }</style></head>"
        "\r\n<body>\r\n";
    for (int i = 0; i < 400; ++i)
        longPage += "<p class=\"a\" id=\"p" + QByteArray::number(i) + "\">Text &amp; <b>more</b> text</p>\r\n";
    longPage += "</body>\r\n</html>\r\n";
    const std::pair<QString, QByteArray> contents[] = {
        {u"index.html"_s, "<html>\r\n<body>\r\n<p>Hello <a href=\"style.css\">there</a></p>\r\n</body>\r\n</html>\r\n"},
        {u"long.html"_s, longPage},
        {u"style.css"_s, "body { margin: 0; background: #fff }\r\n@media print { a { color: black } }\r\n"},
        {u"script.js"_s, "function f(a) {\n    return a ? `x${a}` : /re/g;\n}\n"},
        {u"page.php"_s,
         "<?php\n$a = \"x\"; // note\nfunction f() { return <<<END\ntext\nEND;\n}\n?>\n<p><?= $a ?></p>\n"},
        {u"empty.txt"_s, ""},
        {u"wide.txt"_s, QByteArray(20000, 'w')},
        {u"signs.txt"_s, "\xD8\xA3\xD9\x87\xD9\x84\xD8\xA7 \xF0\x9F\x98\x80 e\xCC\x81 \xE2\x80\x8B\tend\n"},
        {u"bytes.bin"_s, QByteArray("\x00\xff\xfe\x01\x0d\x80\x0a\x1a", 8).repeated(50)},
    };
    for (const auto &[name, content] : contents)
        m_documents.append(putFile(m_folder + u"/site/"_s + name, content));
}

void SoakDesk::registerForms()
{
    const auto makeEditor = [this](QWidget *parent) { return new CodeMax({m_files, m_recovery, m_prompts}, parent); };
    colour::registerForms(m_catalogue);
    wizards::registerForms(m_catalogue);
    wizards::registerImageMap(m_catalogue, [makeEditor](QWidget *parent) -> EditorView {
        auto *editor = makeEditor(parent);
        return {editor, editor};
    });
    panes::registerForms(m_catalogue);
    start::registerForms(m_catalogue, m_recovery);
    ftp::registerForms(m_catalogue, std::make_shared<FtpClient>(FtpClient{m_server}));
    tags::registerForms(m_catalogue);
    zephira::settings::registerForms(m_catalogue, m_fileTypes, executable);
    zephira::tools::registerForms(m_catalogue, realTidy);
    zephira::tools::registerSpelling(m_catalogue, {std::shared_ptr<SpellCheck>(), &m_spelling.check});
    views::registerForms(
        m_catalogue,
        [makeEditor](QWidget *parent) -> EditorView {
            auto *viewer = makeEditor(parent);
            viewer->setReadOnly(true);
            return {viewer, viewer};
        },
        []() -> Result<PageFetcher *> {
            return Error{Error::Code::Failed, u"no network"_s};
        });
}

} // namespace zephira
