// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <vector>

namespace zephira {

class CodeMax;

/// A place to fill in, in bytes of the text; `end` is exclusive.
struct TextField {
    int number = 0; ///< equal ones are filled in together
    qsizetype start = 0;
    qsizetype end = 0;
};

/// Steps through the places of a text that was put in, by Tab and Shift+Tab. It ends with Escape, when the caret leaves
/// the text, and with the last place.
class FieldSteps final : public QObject
{
    Q_OBJECT

public:
    /// The control must outlive the steps.
    explicit FieldSteps(CodeMax &rt);

    /// Selects the first places of the text from start up to end; 0 is the last number.
    void begin(qsizetype start, qsizetype end, std::vector<TextField> fields);
    void end();
    bool isActive() const { return !m_fields.empty(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void goTo(std::size_t step);
    void inserted(qsizetype position, qsizetype length);
    void removed(qsizetype position, qsizetype length);
    void lookAtCaret();

    CodeMax &m_rt;
    TextField m_whole;
    qsizetype m_length = 0; ///< of the whole document
    std::vector<TextField> m_fields;
    /// The numbers, in the order of the steps.
    std::vector<int> m_steps;
    std::size_t m_step = 0;
};

} // namespace zephira
