// SPDX-License-Identifier: GPL-3.0-or-later
// Opening and saving, and the operations that are called by name.
#include "editor/codemax.h"

#include <QFileInfo>

namespace zephira {

using namespace Qt::StringLiterals;

Result<void> CodeMax::openFile(const QString &path)
{
    Result<DecodedText> opened = m_file.open(path);
    if (!opened)
        return opened.error();
    perform([&] {
        m_path = path;
        replaceDocument(opened.value());
    });
    return {};
}

Result<void> CodeMax::saveFile(const QString &path, bool clearUndo)
{
    m_steps.end();
    Result<void> saved = store(path, clearUndo);
    if (saved && clearUndo) {
        m_engine.send(SCI_EMPTYUNDOBUFFER);
        m_path = path;
    }
    return saved;
}

/// Writes the text, in UTF-8 if it can't be stored in the document's encoding and the user agrees. The document's own
/// encoding changes only when its own file is written, not for a copy elsewhere.
Result<void> CodeMax::store(const QString &path, bool becomesDocument)
{
    Result<void> saved = m_file.save(path, utf8Pieces(), textFormat());
    if (saved || saved.error().code != Error::Code::Unencodable)
        return saved;
    const Question question{saved.error().sentence
                                + u"\n\nSave \"%1\" as UTF-8 instead?"_s.arg(QFileInfo(path).fileName()),
                            {},
                            Question::Icon::Exclamation,
                            Question::Buttons::YesNo};
    if (m_services.prompts.ask(question) != Answer::Yes)
        return saved;
    TextFormat format = textFormat();
    format.encoding = Encoding::Utf8;
    format.byteOrderMark = false;
    saved = m_file.save(path, utf8Pieces(), format);
    if (saved && (becomesDocument || path == m_path))
        m_format.setStored(format);
    return saved;
}

bool CodeMax::OpenFile(const QString &path)
{
    const Result<void> opened = openFile(path);
    m_lastError = opened ? QString() : opened.error().sentence;
    return opened.ok();
}

bool CodeMax::SaveFile(const QString &path, bool clearUndo)
{
    const Result<void> saved = saveFile(path, clearUndo);
    m_lastError = saved ? QString() : saved.error().sentence;
    return saved.ok();
}

QVariantMap CodeMax::GetSel(bool normalized) const
{
    const CodeMaxRange range = selection(normalized);
    return {{u"StartLineNo"_s, range.StartLineNo},
            {u"StartColNo"_s, range.StartColNo},
            {u"EndLineNo"_s, range.EndLineNo},
            {u"EndColNo"_s, range.EndColNo}};
}

} // namespace zephira
