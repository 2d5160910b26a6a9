// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/editplaces.h"

#include <QObject>

namespace zephira {

class CodeMax;
class TextHelpers;

/// Follows where the text is changed.
class LastEdit : public QObject
{
public:
    explicit LastEdit(CodeMax &rt);

    /// Goes to the place changed last, then to the ones before.
    void go();

private:
    void noteChange(int position, int type, int length);

    CodeMax &m_rt;
    QString m_path;
    EditPlaces m_places;
};

void goToLastEdit(TextHelpers &helpers);

} // namespace zephira
