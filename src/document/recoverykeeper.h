// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "files/recoveryschedule.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace zephira {

class Designer;
class Document;
class EditingControl;
class RecoveryCopies;

/// Keeps a recovery copy of the modified document, or of its state in visual mode, on disk. It is driven by change
/// events instead of polling, and writes at most 15 seconds after a change.
class RecoveryKeeper : public QObject
{
    Q_OBJECT

public:
    RecoveryKeeper(RecoveryCopies &copies, const EditingControl &editor, Designer &designer, const Document &document);

    /// The editing control raised its change event, or the page in the designer may have changed.
    void textChanged();
    /// The document was saved or discarded.
    void discard();
    /// Writes the copy at once, replacing the previous one.
    void writeNow();
    /// Writes a copy that discard() doesn't remove.
    void keepForGood();

private:
    RecoverySchedule::Time now() const;
    QString documentName() const;
    Result<void> write();
    void due();

    RecoveryCopies &m_copies;
    const EditingControl &m_editor;
    Designer &m_designer;
    const Document &m_document;
    RecoverySchedule m_schedule;
    QElapsedTimer m_running;
    QTimer m_timer;
};

} // namespace zephira
