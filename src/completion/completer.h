// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "completion/completiondata.h"
#include "completion/completionplace.h"
#include "completion/linkedsheets.h"
#include "completion/proposals.h"

#include <QObject>
#include <QPointer>

#include <memory>

class QKeyEvent;
class QInputMethodEvent;

namespace zephira {

struct AppContext;
class CodeMax;
class CompletionPopup;

/// Completes what one types in a code view. The list comes up by itself behind "<", "</", "&", ":" in a style sheet and a
/// blank in a tag; elsewhere it is asked for. Tab takes its current entry, and so does Return once the user has moved in
/// it. Every other key goes to the text as if there were no list.
class Completer final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this.
    Completer(CodeMax &rt, const AppContext &context);
    ~Completer() override;

    /// Lists what may stand at the caret. Nothing happens where nothing may.
    void complete();
    void close();
    /// Whether the list is to be seen.
    bool isShown() const;

    /// Whether it comes up by itself; kept for the user.
    bool isOn() const { return m_isOn; }
    void setOn(bool on);

    /// What is known of HTML and style sheets; read at the first call.
    std::shared_ptr<const CompletionData> data();
    /// Which rules the text in a control follows.
    static PlaceLanguage languageOf(const CodeMax &rt, const AppContext &context);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool handleKey(const QKeyEvent &key);
    bool isForList(const QKeyEvent &key) const;
    void noteInput(const QInputMethodEvent &event);
    void afterChange();
    void afterTyping(char typed);
    void narrow();
    CompletionPlace place() const;
    PlaceLanguage language() const { return languageOf(m_rt, m_context); }
    void open(const CompletionPlace &place);
    void show();
    void take();
    void replaceAtCarets(const QByteArray &typed, const QByteArray &rest, const ProposalText &text);
    DocumentNames documentNames() const;
    QStringList documentWords() const;
    QStringList filesIn(const QByteArray &folder) const;
    bool isTextPlain() const;

    CodeMax &m_rt;
    const AppContext &m_context;
    std::shared_ptr<const CompletionData> m_data;
    std::unique_ptr<LinkedSheets> m_sheets;
    QPointer<CompletionPopup> m_popup;
    CompletionPlace m_place;
    /// Where in the text the place begins, in bytes; -1 while there is no list.
    qsizetype m_start = -1;
    /// Where the caret is after what was last typed.
    qsizetype m_caret = -1;
    /// A key that is being handled and changes the text: its last byte, '\b' for one that deletes. 0 for none.
    char m_pending = 0;
    bool m_isOn;
};

} // namespace zephira
