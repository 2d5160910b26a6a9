// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"

#include <deque>
#include <functional>
#include <variant>

namespace zephira {

/// Answers questions from a script. The questions must come in the order and with exactly the texts that the test
/// expects; an unexpected one fails the test with a message that has both texts, and is answered as if the user had
/// cancelled. Expected questions that were never asked fail the test when the prompts are destroyed, or at verify().
class ScriptedPrompts final : public Prompts
{
public:
    using Reply = std::variant<Answer, std::optional<QString>, std::optional<quint32>, std::optional<FontChoice>>;
    /// Called while the question would be on the screen.
    using During = std::function<void()>;

    ScriptedPrompts() = default;
    ~ScriptedPrompts() override;
    Q_DISABLE_COPY_MOVE(ScriptedPrompts)

    void expect(const Question &question, Answer answer, During during = {});
    /// Expects a message that has only OK; the defaults are those of Prompts::tell().
    void expectTell(const QString &text, const QString &title = {}, Question::Icon icon = Question::Icon::Information);
    void expectInput(const InputRequest &request, const std::optional<QString> &answer, During during = {});
    void expectFile(const FileRequest &request, const std::optional<QString> &answer, During during = {});
    void expectFolder(const QString &title, const QString &initialFolder, const std::optional<QString> &answer);
    void expectColour(quint32 initial, std::optional<quint32> answer);
    void expectFont(const FontChoice &initial, const std::optional<FontChoice> &answer);

    /// Whether every expected question has been asked; fails the test if not, and forgets the rest.
    bool verify();

    /// Called on failures instead of QTest, for the tests of this class.
    std::function<void(const QString &)> onFailure;

    Answer ask(const Question &question) override;
    std::optional<QString> input(const InputRequest &request) override;
    std::optional<QString> file(const FileRequest &request) override;
    std::optional<QString> folder(const QString &title, const QString &initialFolder) override;
    std::optional<quint32> colour(quint32 initial) override;
    std::optional<FontChoice> font(const FontChoice &initial) override;

private:
    /// Requests are compared by their descriptions, which have every field and nothing else.
    struct Step {
        QString request;
        Reply reply;
        During during;
    };

    template<typename T>
    T answerTo(const QString &request, T cancelled);
    void fail(const QString &message) const;

    std::deque<Step> m_script;
};

} // namespace zephira
