// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/spelling/registerspelling.h"

#include "core/formcatalogue.h"
#include "tools/spelling/spellchecker1.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace zephira::tools {

void registerSpelling(FormCatalogue &catalogue, std::shared_ptr<SpellCheck> check)
{
    catalogue.add(u"SpellChecker1"_s,
                  [check = std::move(check)](const AppContext &context, QWidget *owner) -> QWidget * {
                      return new SpellChecker1(context, *check, owner);
                  });
}

} // namespace zephira::tools
