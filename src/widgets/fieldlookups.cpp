// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/fieldlookups.h"

#include "core/appcontext.h"
#include "core/filelookup.h"
#include "core/prompts.h"
#include "widgets/colourswatch.h"
#include "widgets/qtvalues.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace zephira {

void offerFiles(QAbstractButton *button, QLineEdit *field, const AppContext &context,
                const std::shared_ptr<FileLookup> &lookup)
{
    QObject::connect(button, &QAbstractButton::clicked, field, [field, context, lookup] {
        if (const auto file = lookup->choose(context, u"Browse for file"_s, u"All Files (*.*)|*.*"_s))
            field->setText(projectReference(context.document, *file));
    });
}

void offerColours(ColourSwatch *swatch, QLineEdit *field, const AppContext &context)
{
    swatch->follow(field);
    QObject::connect(swatch, &ColourSwatch::clicked, field, [swatch, field, &prompts = context.prompts] {
        const QColor shown = swatch->colour().isValid() ? swatch->colour() : QColor(Qt::white);
        if (const auto chosen = prompts.colour(toColourNumber(shown)))
            field->setText(toQColor(*chosen).name().toUpper());
    });
}

} // namespace zephira
