// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/recoverykeeper.h"

#include "core/clock.h"
#include "core/designer.h"
#include "core/editingcontrol.h"
#include "document/document.h"
#include "files/recoverycopies.h"

#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

RecoveryKeeper::RecoveryKeeper(RecoveryCopies &copies, const EditingControl &editor, Designer &designer,
                               const Document &document)
    : m_copies(copies), m_editor(editor), m_designer(designer), m_document(document)
{
    m_running.start();
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &RecoveryKeeper::due);
}

RecoverySchedule::Time RecoveryKeeper::now() const
{
    return RecoverySchedule::Time(m_running.elapsed());
}

void RecoveryKeeper::textChanged()
{
    if (const auto wait = m_schedule.changed(now()))
        m_timer.start(*wait);
}

void RecoveryKeeper::due()
{
    // A text that was saved meanwhile, or loaded and not changed, needs no copy.
    if (m_document.docModified() || m_document.holdsDesignersWork())
        writeNow();
    else
        discard();
}

QString RecoveryKeeper::documentName() const
{
    return m_document.docPath().isEmpty() ? u"New Document"_s : m_document.docPath();
}

void RecoveryKeeper::keepForGood()
{
    [[maybe_unused]] const Result<void> kept = m_copies.keepUnsaved(documentName(), m_editor.utf8Pieces());
}

Result<void> RecoveryKeeper::write()
{
    if (!m_document.holdsDesignersWork())
        return m_copies.write(documentName(), m_editor.utf8Pieces());
    const QByteArray html = m_designer.documentHtml().toUtf8();
    return m_copies.write(documentName(), std::array{QByteArrayView(html)});
}

void RecoveryKeeper::writeNow()
{
    if (write())
        m_schedule.settled();
    else
        m_timer.start(m_schedule.copyFailed(now()));
}

void RecoveryKeeper::discard()
{
    m_timer.stop();
    m_schedule.settled();
    m_copies.removeOwn();
}

} // namespace zephira
