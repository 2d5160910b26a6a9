// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/completer.h"

#include "completion/completionpopup.h"
#include "completion/completiontext.h"
#include "core/appcontext.h"
#include "core/documenthost.h"
#include "core/languages.h"
#include "core/paths.h"
#include "core/usersettings.h"
#include "editor/codemax.h"

#include <QColor>
#include <QDirIterator>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

constexpr char deletion = '\b';
constexpr qsizetype wordsAround = 128 * 1024;
constexpr qsizetype mostWords = 3000;
constexpr int mostFiles = 3000;
/// How much of the text behind the caret matters to an entry.
constexpr qsizetype lookAhead = 64;

/// Names of colors, those of style sheets.
const QStringList &colourNames()
{
    static const QStringList names = [] {
        QStringList all = QColor::colorNames();
        all.removeAll(u"transparent"_s);
        if (!all.contains(u"rebeccapurple"))
            all.append(u"rebeccapurple"_s);
        all.sort();
        return all;
    }();
    return names;
}

/// A place in which the list comes up behind a typed character.
bool comesUp(const CompletionPlace &place, char typed, qsizetype length)
{
    using enum PlaceKind;
    const bool isEmpty = place.start == length;
    switch (typed) {
    case '<':
        return place.kind == Tag && isEmpty;
    case '/':
        return place.kind == ClosingTag && isEmpty;
    case ' ':
        return place.kind == Attribute && isEmpty;
    case '&':
        return place.kind == Entity && isEmpty;
    case ':':
        return (place.kind == PropertyValue && isEmpty) || place.kind == Pseudo;
    default:
        return false;
    }
}

bool isPartOfName(char c, PlaceKind kind)
{
    return isNameByte(c) || (kind == PlaceKind::Pseudo && c == ':') || (kind == PlaceKind::Tag && c == ':')
        || (kind == PlaceKind::File && (c == '.' || c == '%'));
}

} // namespace

Completer::Completer(CodeMax &rt, const AppContext &context)
    : m_rt(rt)
    , m_context(context)
    , m_sheets(std::make_unique<LinkedSheets>(context.files))
    , m_isOn(wholeNumber(context.settings, UserSetting::CompleteWhileTyping) != 0)
{
    rt.installEventFilter(this);
    rt.viewport()->installEventFilter(this);
    connect(&rt, &CodeMax::Change, this, &Completer::afterChange);
    connect(&rt, &CodeMax::SelChange, this, [this] {
        if (m_start >= 0 && m_rt.engine().caret() != m_caret)
            close();
    });
    for (const QScrollBar *bar : {rt.verticalScrollBar(), rt.horizontalScrollBar()}) {
        connect(bar, &QScrollBar::valueChanged, this, [this] {
            // A key that scrolls goes on in the list.
            if (m_start >= 0 && !m_pending)
                close();
        });
    }
}

Completer::~Completer()
{
    // While it goes away, events still come that ask for it.
    const CompletionPopup *popup = m_popup;
    m_popup.clear();
    delete popup;
}

void Completer::setOn(bool on)
{
    m_isOn = on;
    writeSwitch(m_context.settings, UserSetting::CompleteWhileTyping, on);
    if (!on)
        close();
}

bool Completer::isShown() const
{
    return m_popup && m_popup->isVisible();
}

void Completer::close()
{
    m_start = -1;
    if (m_popup)
        m_popup->hide();
}

bool Completer::eventFilter(QObject *watched, QEvent *event)
{
    const bool isText = watched == &m_rt;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (isText && isForList(*static_cast<QKeyEvent *>(event))) {
            event->accept();
            return true;
        }
        break;
    case QEvent::KeyPress:
        if (isText)
            return handleKey(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::InputMethod:
        if (isText)
            noteInput(*static_cast<QInputMethodEvent *>(event));
        break;
    case QEvent::FocusOut:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::Hide:
        close();
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowDeactivate:
    case QEvent::WindowStateChange:
        // The text's own size changes with its scroll bars, which may come and go while one types.
        if (watched->isWidgetType() && static_cast<QWidget *>(watched)->isWindow())
            close();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

/// Whether the list takes a key, and the text doesn't see it.
bool Completer::isForList(const QKeyEvent &key) const
{
    if (!isShown() || (key.modifiers() & ~Qt::KeypadModifier))
        return false;
    switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Escape:
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return m_popup->hasMoved();
    default:
        return false;
    }
}

bool Completer::handleKey(const QKeyEvent &key)
{
    if (isForList(key)) {
        switch (key.key()) {
        case Qt::Key_Up:
            m_popup->moveBy(-1);
            break;
        case Qt::Key_Down:
            m_popup->moveBy(1);
            break;
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            m_popup->movePage(key.key() == Qt::Key_PageDown);
            break;
        case Qt::Key_Escape:
            close();
            break;
        default:
            take();
            return true;
        }
        if (m_start >= 0)
            show();
        return true;
    }
    const bool isDeletion = key.key() == Qt::Key_Backspace && !(key.modifiers() & ~Qt::ShiftModifier);
    const QByteArray typed = key.text().toUtf8();
    if (isDeletion)
        m_pending = deletion;
    else if (!typed.isEmpty() && static_cast<unsigned char>(typed.back()) >= ' ' && typed.back() != '\x7f')
        m_pending = typed.back();
    else
        m_pending = 0;
    // A key that changes nothing isn't to be taken for the next change.
    if (m_pending)
        QMetaObject::invokeMethod(
            this, [this] { m_pending = 0; }, Qt::QueuedConnection);
    return false;
}

/// While an input method composes, its own window is at the caret.
void Completer::noteInput(const QInputMethodEvent &event)
{
    const QByteArray typed = event.commitString().toUtf8();
    m_pending = typed.isEmpty() ? '\0' : typed.back();
    if (!event.preeditString().isEmpty())
        close();
}

void Completer::afterChange()
{
    const char pending = std::exchange(m_pending, '\0');
    if (!pending)
        close();
    else if (m_start >= 0)
        narrow();
    else if (pending != deletion && m_isOn)
        afterTyping(pending);
}

/// Whether each caret has no selection, and the text can be changed.
bool Completer::isTextPlain() const
{
    const SciEngine &engine = m_rt.engine();
    return !m_rt.isReadOnly() && engine.send(Sci::SCI_GETSELECTIONEMPTY) && !engine.send(Sci::SCI_SELECTIONISRECTANGLE);
}

void Completer::afterTyping(char typed)
{
    if (!QByteArrayView("</ &:").contains(typed) || !isTextPlain() || language() == PlaceLanguage::Other)
        return;
    const qsizetype caret = m_rt.engine().caret();
    if (caret == 0 || m_rt.engine().bytes(caret - 1, caret).front() != typed)
        return;
    const CompletionPlace found = place();
    if (comesUp(found, typed, caret))
        open(found);
}

PlaceLanguage Completer::languageOf(const CodeMax &rt, const AppContext &context)
{
    if (context.document.languageRow() == language::StyleSheets)
        return PlaceLanguage::StyleSheet;
    const QString name = rt.language().toLower();
    if (name == u"html")
        return PlaceLanguage::Html;
    return name == u"xml" ? PlaceLanguage::Xml : PlaceLanguage::Other;
}

/// The place at the caret, with offsets in the text.
CompletionPlace Completer::place() const
{
    const qsizetype caret = m_rt.engine().caret();
    const qsizetype from = std::max<qsizetype>(0, caret - longestLookBack);
    CompletionPlace found = completionPlace(m_rt.engine().bytes(from, caret), language(), from > 0);
    found.start += from;
    return found;
}

void Completer::complete()
{
    close();
    if (isTextPlain())
        open(place());
}

std::shared_ptr<const CompletionData> Completer::data()
{
    if (!m_data) {
        const Result<QByteArray> file = m_context.files.read(m_context.appPath + u"/deps/completion.dat"_s);
        m_data = std::make_shared<const CompletionData>(file ? file.value() : QByteArray());
    }
    return m_data;
}

void Completer::open(const CompletionPlace &found)
{
    const ProposalSources sources{.data = *data(),
                                  .colours = colourNames(),
                                  .names = [this] { return documentNames(); },
                                  .words = [this] { return documentWords(); },
                                  .files = [this](const QByteArray &folder) { return filesIn(folder); }};
    QList<Proposal> list = proposals(found, language(), sources);
    m_place = found;
    m_caret = m_rt.engine().caret();
    const QByteArray typed = m_rt.engine().bytes(found.start, m_caret).toByteArray();
    // A name of the document isn't completed to itself.
    if (!typed.isEmpty())
        list.removeIf([&](const Proposal &each) { return !each.row && each.text == QString::fromUtf8(typed); });
    if (list.isEmpty()) {
        close();
        return;
    }
    if (!m_popup) {
        m_popup = new CompletionPopup(m_rt);
        connect(m_popup, &CompletionPopup::clicked, this, &Completer::take);
        m_rt.window()->installEventFilter(this);
    }
    m_start = found.start;
    // The filter that was installed last sees a key first: what else steps by the Tab key comes after the list.
    m_rt.removeEventFilter(this);
    m_rt.installEventFilter(this);
    m_popup->setProposals(list);
    narrow();
}

/// What was typed has changed: shows what fits now.
void Completer::narrow()
{
    m_caret = m_rt.engine().caret();
    const QByteArrayView typed = m_caret >= m_start ? m_rt.engine().bytes(m_start, m_caret) : QByteArrayView();
    const bool isName = m_caret >= m_start && isTextPlain()
        && std::ranges::all_of(typed, [this](char c) { return isPartOfName(c, m_place.kind); });
    if (!isName) {
        // Behind a blank or the like there may be another place of the same kind, or one for which the list comes up.
        if (m_caret < m_start || !isTextPlain()) {
            close();
            return;
        }
        const CompletionPlace next = place();
        const char last = typed.isEmpty() ? '\0' : typed.back();
        const bool goesOn = next.kind == m_place.kind && next.kind != PlaceKind::Words && next.start > m_start;
        const bool isSame = next.kind == m_place.kind && next.start == m_start;
        if (!isSame) {
            close();
            if (goesOn || (m_isOn && comesUp(next, last, m_caret)))
                open(next);
            return;
        }
    }
    if (m_popup->filter(QString::fromUtf8(typed)))
        show();
    else
        m_popup->hide(); // Until what doesn't fit is deleted.
}

void Completer::show()
{
    const SciEngine &engine = m_rt.engine();
    const QPoint at(static_cast<int>(engine.send(Sci::SCI_POINTXFROMPOSITION, 0, m_start)),
                    static_cast<int>(engine.send(Sci::SCI_POINTYFROMPOSITION, 0, m_start)));
    const QSize size(1, static_cast<int>(engine.send(Sci::SCI_TEXTHEIGHT, engine.lineOf(m_start))));
    m_popup->showAt(QRect(m_rt.viewport()->mapToGlobal(at), size));
}

/// Puts the current entry in the place of what was typed.
void Completer::take()
{
    const Proposal *current = m_popup && m_start >= 0 ? m_popup->current() : nullptr;
    const SciEngine &engine = m_rt.engine();
    const qsizetype caret = engine.caret();
    if (!current || caret < m_start || !isTextPlain()) {
        close();
        return;
    }
    const QByteArray typed = engine.bytes(m_start, caret).toByteArray();
    QByteArray behind = engine.bytes(caret, std::min(engine.length(), caret + lookAhead)).toByteArray();
    // The end of a word that already stands behind the caret isn't written twice.
    const auto end = std::ranges::find_if_not(std::as_const(behind), isNameByte);
    QByteArray rest = behind.first(end - behind.cbegin());
    if (!current->text.toUtf8().endsWith(rest))
        rest.clear();
    const ProposalText text = proposalText(*current, m_place, typed, behind.sliced(rest.size()));
    close();
    replaceAtCarets(typed, rest, text);
    if (text.goesOn && m_isOn) {
        const CompletionPlace next = place();
        if (next.kind != PlaceKind::None && next.kind != PlaceKind::Words)
            open(next);
    }
}

/// Each caret behind the same text gets the same; any other stays where it is.
void Completer::replaceAtCarets(const QByteArray &typed, const QByteArray &rest, const ProposalText &text)
{
    const SciEngine &engine = m_rt.engine();
    std::vector<qsizetype> carets;
    const qsizetype main = engine.send(Sci::SCI_GETMAINSELECTION);
    const qsizetype mainCaret = engine.caret();
    for (qsizetype i = 0; i < engine.send(Sci::SCI_GETSELECTIONS); ++i)
        carets.push_back(engine.send(Sci::SCI_GETSELECTIONNCARET, i));
    std::ranges::sort(carets);
    m_rt.perform([&] {
        engine.send(Sci::SCI_BEGINUNDOACTION);
        qsizetype moved = 0;
        qsizetype lastEnd = 0;
        qsizetype newMain = 0;
        for (qsizetype &caret : carets) {
            const bool isMain = caret == mainCaret;
            const qsizetype start = caret + moved - typed.size();
            const qsizetype behind = caret + moved + rest.size();
            const bool fits =
                start >= lastEnd && behind <= engine.length() && engine.bytes(start, behind) == typed + rest;
            caret += moved;
            if (fits) {
                engine.replace(start, behind, text.text);
                caret = start + text.caret;
                moved += text.text.size() - (typed.size() + rest.size());
                lastEnd = start + text.text.size();
            }
            if (isMain)
                newMain = caret;
        }
        engine.send(Sci::SCI_SETEMPTYSELECTION, newMain);
        for (const qsizetype caret : carets) {
            if (caret != newMain)
                engine.send(Sci::SCI_ADDSELECTION, caret, caret);
        }
        for (qsizetype i = 0; main >= 0 && i < engine.send(Sci::SCI_GETSELECTIONS); ++i) {
            if (engine.send(Sci::SCI_GETSELECTIONNCARET, i) == newMain)
                engine.send(Sci::SCI_SETMAINSELECTION, i);
        }
        engine.send(Sci::SCI_ENDUNDOACTION);
        engine.send(Sci::SCI_CHOOSECARETX);
        engine.send(Sci::SCI_SCROLLCARET);
    });
}

DocumentNames Completer::documentNames() const
{
    const SciEngine &engine = m_rt.engine();
    const qsizetype caret = engine.caret();
    const QByteArrayView text = engine.bytes(std::max<qsizetype>(0, caret - longestLookBack),
                                             std::min(engine.length(), caret + longestLookBack));
    const PlaceLanguage rules = language();
    DocumentNames names = rules == PlaceLanguage::StyleSheet ? styleNames(text) : markupNames(text, rules);
    const QString root = hasProject(m_context.document) ? m_context.document.projectPath() : QString();
    names.add(m_sheets->names(names.sheets, folderOf(m_context.document.commonDialogFile()), root));
    return names;
}

QStringList Completer::documentWords() const
{
    const SciEngine &engine = m_rt.engine();
    const qsizetype caret = engine.caret();
    const QSet<QByteArray> words = wordsOf(
        engine.bytes(std::max<qsizetype>(0, caret - wordsAround), std::min(engine.length(), caret + wordsAround)),
        mostWords);
    QStringList names;
    for (const QByteArray &word : words)
        names.append(QString::fromUtf8(word));
    return names;
}

/// Folders first, each with a "/" behind it.
QStringList Completer::filesIn(const QByteArray &folder) const
{
    const QString root = hasProject(m_context.document) ? m_context.document.projectPath() : QString();
    const QString own = folderOf(m_context.document.commonDialogFile());
    const QString path = linkedPath(folder.isEmpty() ? "./" : folder, own.isEmpty() ? root : own, root);
    if (path.isEmpty())
        return {};
    QStringList folders;
    QStringList files;
    QDirIterator entries(path, QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot);
    for (int i = 0; i < mostFiles && entries.hasNext(); ++i) {
        entries.next();
        if (entries.fileInfo().isDir())
            folders.append(entries.fileName() + u'/');
        else
            files.append(entries.fileName());
    }
    folders.sort(Qt::CaseInsensitive);
    files.sort(Qt::CaseInsensitive);
    return folders + files;
}

} // namespace zephira
