// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/extensionrun.h"

#include "core/errorstyles.h"
#include "core/languages.h"
#include "plugins/extensionfolder.h"

#include <QEventLoop>
#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int stillWorking = 1;

/// An extension that waits is asked at most a thousand times a second, so that waiting doesn't keep a processor busy.
constexpr std::chrono::milliseconds pause{1};

/// Handles events for a moment. Returns false if the program is about to end, which ends all event loops.
bool handleEvents()
{
    constexpr int paused = 1;
    QEventLoop loop;
    QTimer::singleShot(pause, Qt::PreciseTimer, &loop, [&loop] { loop.exit(paused); });
    int ended = 0;
    // The event may be one of the module's own.
    runForeign([&] { ended = loop.exec(); });
    return ended == paused;
}

} // namespace

void ExtensionRun::run(const QString &name, const Delivery &delivery)
{
    const int abandoned = m_abandoned;
    const auto isWanted = [&] { return m_abandoned == abandoned; };
    // An object that a later run has displaced stays until this one has ended: one of its functions may have started
    // that run.
    std::shared_ptr<LateBound> own;
    endingQuietly([&] {
        own = m_folder.create(name);
        m_object = own;
        const ExtensionKind &kind = m_folder.kind();
        while (object().number(kind.start) == stillWorking && isWanted()) {
            if (!handleEvents())
                return;
        }
        if (!isWanted())
            return;
        const QString text = object().text(kind.text);
        if (text.isEmpty())
            return;
        delivery.useText(text);
        const int row = object().number(kind.language);
        if (!languageRow(row))
            throw HandlerError{u"There is no language %1."_s.arg(row)};
        delivery.setLanguage(row);
        if (delivery.finish)
            delivery.finish();
    });
    if (m_object == own)
        m_object.reset();
}

/// The object that runs; raises HandlerError if a later run has taken its place and ended.
const LateBound &ExtensionRun::object() const
{
    if (!m_object)
        throw HandlerError{u"The extension was replaced by another one."_s};
    return *m_object;
}

} // namespace zephira
