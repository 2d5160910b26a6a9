// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/problems.h"

#include "completion/completer.h"
#include "core/appcontext.h"
#include "core/documenthost.h"
#include "core/languages.h"
#include "core/paths.h"
#include "core/settings.h"
#include "editor/codemax.h"
#include "problems/problemlist.h"
#include "problems/problemspage.h"
#include "widgets/toolpanel.h"

#include <QFileInfo>
#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

const QString pageName = u"ProblemsPage"_s;

/// Style sheets in languages of their own, whose properties aren't all of CSS.
constexpr std::array<QStringView, 4> ownStyles{u"less", u"sass", u"scss", u"styl"};

} // namespace

Problems::Problems(Parts parts)
    : m_parts(std::move(parts))
    , m_marks(m_parts.rt.engine())
    , m_list(new ProblemList(this))
    , m_isOn(wholeNumber(m_parts.context.settings, UserSetting::MarkProblems) != 0)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(delay);
    connect(&m_soon, &QTimer::timeout, this, &Problems::check);
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, &Problems::giveUp);
    connect(&m_task, &CheckTask::finished, this, &Problems::show);
    m_parts.panel.addPage(pageName, tr("Problems"), [this](QWidget *parent) {
        m_page = new ProblemsPage(
            *m_list, [this](std::size_t problem) { goToProblem(problem); }, parent);
        m_page->setState(m_state);
        return m_page;
    });
    forget();
}

Problems::~Problems() = default;

void Problems::start()
{
    if (m_isStarted)
        return;
    m_isStarted = true;
    m_path = m_parts.rt.path();
    m_parts.rt.installEventFilter(this);
    m_parts.rt.viewport()->installEventFilter(this);
    connect(&m_parts.rt, &CodeMax::Change, this, &Problems::noteChange);
    noteChange();
}

void Problems::setOn(bool on)
{
    m_isOn = on;
    m_isTooSlow = false;
    writeSwitch(m_parts.context.settings, UserSetting::MarkProblems, on);
    forget();
    if (on) {
        start();
        check();
    }
}

/// Another file has nothing in common with the one before.
void Problems::noteChange()
{
    if (m_parts.rt.path() != m_path) {
        m_path = m_parts.rt.path();
        m_isTooSlow = false;
        forget();
    }
    if (m_isOn)
        m_soon.start();
}

void Problems::languageChanged()
{
    if (!m_isStarted)
        return;
    forget();
    if (m_isOn)
        m_soon.start();
}

PlaceLanguage Problems::language() const
{
    const PlaceLanguage language = Completer::languageOf(m_parts.rt, m_parts.context);
    const QString name = m_parts.context.document.commonDialogFile();
    const FileType *type = fileTypeOf(name);
    const bool isProgram = type && type->kind == DocumentKind::PlainText && language == PlaceLanguage::Html;
    const bool isOwnStyle = language == PlaceLanguage::StyleSheet
        && std::ranges::find(ownStyles, extensionOf(name).toLower()) != ownStyles.end();
    return isProgram || isOwnStyle ? PlaceLanguage::Other : language;
}

/// Why the text can't be checked; empty if it can.
QString Problems::reasonAgainst() const
{
    if (m_parts.rt.engine().length() > largestChecked)
        return tr("This document is larger than 4 MB, so it isn't checked.");
    const auto pieces = m_parts.rt.utf8Pieces();
    if (std::ranges::any_of(pieces, [](QByteArrayView piece) { return piece.contains('\0'); }))
        return tr("This document contains bytes that aren't text, so it isn't checked.");
    if (m_isTooSlow)
        return tr("Checking this document takes too long, so it isn't checked any more.");
    return {};
}

void Problems::check()
{
    m_soon.stop();
    if (!m_isOn)
        return;
    if (m_parts.rt.engine().length() == 0 || language() == PlaceLanguage::Other) {
        forget();
        return;
    }
    if (const QString reason = reasonAgainst(); !reason.isEmpty()) {
        forget();
        m_reason = reason;
        fill({reason}, {}, tr("Not checked."));
        return;
    }
    m_reason.clear();
    m_patience.start();
    m_task.start([this] { return order(); });
}

CheckOrder Problems::order()
{
    CheckOrder order;
    m_version = m_parts.rt.textVersion();
    order.language = language();
    const auto pieces = m_parts.rt.utf8Pieces();
    order.text.reserve(pieces[0].size() + pieces[1].size());
    for (const QByteArrayView piece : pieces)
        order.text.append(piece);
    if (!m_names)
        m_names = std::make_shared<const KnownNames>(m_parts.data());
    order.names = m_names;
    if (order.language == PlaceLanguage::Html && m_parts.loadTidy) {
        const Result<TidyEngine *> tidy = m_parts.loadTidy();
        order.tidy = tidy ? tidy.value() : nullptr;
    }
    const DocumentHost &document = m_parts.context.document;
    order.places.folder = folderOf(document.commonDialogFile());
    order.places.project = hasProject(document) ? document.projectPath() : QString();
    order.places.exists = [](const QString &path) { return QFileInfo::exists(path); };
    return order;
}

void Problems::show(const CheckReport &report)
{
    m_patience.stop();
    // After another change another report follows.
    if (m_parts.rt.textVersion() != m_version)
        return;
    m_marks.set(report.problems);
    const std::size_t count = report.problems.size();
    QStringList notes = report.notes;
    if (report.isCut)
        notes.prepend(tr("There are more problems: these are the first %1.").arg(count));
    fill(notes, report.problems, count == 0 ? tr("No problems were found.") : QString());
    const QString number = QString::number(count) + (report.isCut ? u"+"_s : QString());
    m_parts.panel.setCaption(pageName, count == 0 ? tr("Problems") : tr("Problems (%1)").arg(number));
}

/// The thread goes on until it sees that nobody waits.
void Problems::giveUp()
{
    m_task.cancel();
    m_isTooSlow = true;
    check();
}

/// Nothing is known of the text.
void Problems::forget()
{
    m_soon.stop();
    m_patience.stop();
    m_task.cancel();
    m_reason.clear();
    if (!m_problems.empty())
        m_marks.clear();
    fill({}, {}, m_isOn ? QString() : tr("Problems aren't looked for."));
    m_parts.panel.setCaption(pageName, tr("Problems"));
}

void Problems::fill(const QStringList &notes, std::vector<Problem> problems, const QString &state)
{
    const SciEngine &engine = m_parts.rt.engine();
    m_problems = std::move(problems);
    std::vector<qsizetype> lines;
    for (const Problem &problem : m_problems)
        lines.push_back(engine.lineOf(problem.start));
    m_list->set(notes, m_problems, lines);
    m_state = state;
    if (m_page)
        m_page->setState(m_state);
}

void Problems::list()
{
    m_parts.panel.enter(pageName);
}

bool Problems::isChecking() const
{
    return m_soon.isActive() || m_task.isBusy();
}

void Problems::tell(const QString &sentence)
{
    m_parts.notice(sentence);
}

void Problems::goTo(bool forward)
{
    const qsizetype caret = m_parts.rt.engine().caret();
    const std::optional<qsizetype> place = forward ? m_marks.next(caret) : m_marks.previous(caret);
    if (place)
        goToPlace(*place);
    else if (!m_isOn)
        tell(tr("Problems aren't looked for."));
    else if (!m_reason.isEmpty())
        tell(m_reason);
    else
        tell(isChecking() && m_parts.rt.engine().length() > 0 ? tr("The document is being checked.")
                                                              : tr("No problems were found."));
}

/// A problem whose place was deleted leaves its line.
void Problems::goToProblem(std::size_t problem)
{
    if (problem >= m_problems.size())
        return;
    m_parts.showCode();
    const qsizetype length = m_parts.rt.engine().length();
    goToPlace(m_marks.placeOf(problem).value_or(std::min(m_problems[problem].start, length)));
    m_parts.rt.setFocus();
}

void Problems::goToPlace(qsizetype position)
{
    const SciEngine &engine = m_parts.rt.engine();
    m_parts.rt.perform([&] {
        engine.send(Sci::SCI_ENSUREVISIBLE, engine.lineOf(position));
        engine.send(Sci::SCI_GOTOPOS, position);
        engine.send(Sci::SCI_CHOOSECARETX);
    });
    const std::vector<std::size_t> found = m_marks.at(position);
    if (found.empty())
        return;
    tell(textAt(position).replace(u'\n', u' '));
    if (m_page)
        m_page->show(m_list->rowOf(found.front()));
}

QString Problems::textAt(qsizetype position) const
{
    QStringList sentences;
    for (const std::size_t problem : m_marks.at(position))
        sentences.append(m_problems[problem].text);
    return sentences.join(u'\n');
}

bool Problems::eventFilter(QObject *watched, QEvent *event)
{
    // Meanwhile another program may have made the files that were missing.
    if (event->type() == QEvent::WindowActivate && watched == &m_parts.rt && m_isOn && !m_problems.empty())
        m_soon.start();
    if (event->type() != QEvent::ToolTip || watched != m_parts.rt.viewport())
        return QObject::eventFilter(watched, event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const qsizetype position =
        m_parts.rt.engine().send(Sci::SCI_POSITIONFROMPOINTCLOSE, help->pos().x(), help->pos().y());
    const QString text = position < 0 ? QString() : textAt(position);
    if (text.isEmpty())
        return QObject::eventFilter(watched, event);
    QToolTip::showText(help->globalPos(), Qt::convertFromPlainText(text), m_parts.rt.viewport());
    return true;
}

} // namespace zephira
