// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/allforms.h"

#include "colour/registerforms.h"
#include "core/clock.h"
#include "editor/codemax.h"
#include "files/diskfilestore.h"
#include "files/recoverycopies.h"
#include "ftp/ftpclient.h"
#include "ftp/recordingoperations.h"
#include "ftp/registerforms.h"
#include "panes/registerforms.h"
#include "settings/registerforms.h"
#include "start/registerforms.h"
#include "support/fakes.h"
#include "support/memoryfiletypes.h"
#include "tags/registerforms.h"
#include "tools/realtidy.h"
#include "tools/registerforms.h"
#include "tools/spelling/fakespeller.h"
#include "tools/spelling/registerspelling.h"
#include "views/registerforms.h"
#include "wizards/registerforms.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// What the editing controls in forms depend on; nothing is opened or saved through it.
struct EditorParts {
    DiskFileStore files;
    SystemClock clock;
    RecoveryCopies recovery{QDir::tempPath() + u"/zephira-forms"_s, files, clock};
    ScriptedPrompts prompts;
};

/// Shared by the forms of the file transfer: a session without a server.
struct FtpParts {
    RecordingOperations operations;
    FtpClient client{operations};
};

/// Shared by the forms of the spelling check: a question about a word.
struct SpellingParts {
    MemoryFileStore files;
    MemoryUserSettings settings;
    SpellingBench bench{files, settings};

    SpellingParts()
    {
        bench.dictionaries.push_back({u"en_GB"_s, u"/dict/en_GB"_s});
        bench.speller.suggested[u"sentense"_s] = {u"sentence"_s, u"sentences"_s, u"sense"_s};
        if (!bench.check.lexicon().OpenLexicon())
            qFatal("there is no dictionary");
        bench.check.start(u"<p>A sentense with a word that no dictionary has.</p>"_s);
        bench.check.ignore();
        bench.check.ignore();
    }
};

} // namespace

FormCatalogue allForms()
{
    FormCatalogue catalogue;
    colour::registerForms(catalogue);
    wizards::registerForms(catalogue);
    panes::registerForms(catalogue);
    tags::registerForms(catalogue);
    static MemoryFileTypes fileTypes;
    settings::registerForms(catalogue, fileTypes, u"/app/zephira"_s);
    tools::registerForms(catalogue, realTidy);
    const auto ftpParts = std::make_shared<FtpParts>();
    ftp::registerForms(catalogue, {ftpParts, &ftpParts->client});
    const auto spellingParts = std::make_shared<SpellingParts>();
    tools::registerSpelling(catalogue, {spellingParts, &spellingParts->bench.check});
    const auto parts = std::make_shared<EditorParts>();
    // The viewer below, which the catalogue keeps, keeps the parts alive for both.
    start::registerForms(catalogue, parts->recovery);
    wizards::registerImageMap(catalogue, [parts](QWidget *parent) -> EditorView {
        auto *editor = new CodeMax({parts->files, parts->recovery, parts->prompts}, parent);
        return {editor, editor};
    });
    views::registerForms(
        catalogue,
        [parts](QWidget *parent) -> EditorView {
            auto *viewer = new CodeMax({parts->files, parts->recovery, parts->prompts}, parent);
            viewer->setReadOnly(true);
            return {viewer, viewer};
        },
        []() -> Result<PageFetcher *> {
            return Error{Error::Code::Failed, u"no network"_s};
        });
    return catalogue;
}

} // namespace zephira
