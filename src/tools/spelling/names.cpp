// SPDX-License-Identifier: GPL-3.0-or-later
// names < STYLES > LIST: the list of names that the spelling check knows besides its dictionary, one to a line, in lower
// case, each once. They are the words in the definitions of all languages, in STYLES, which are the properties and rules
// of style sheets, and those of SQL and of style sheet units, for which the program has no other table.
#include "syntax/languagewords.h"
#include "tools/spelling/words.h"

#include <cstdlib>
#include <iostream>
#include <iterator>
#include <set>
#include <string>

using namespace zephira;

namespace {

constexpr QStringView units = uR"(
ch cm cqb cqh cqi cqmax cqmin cqw deg dpcm dpi dppx dvb dvh dvi dvmax dvmin dvw em ex fr grad hz ic khz lh lvh lvw mm ms pc
pt px rad rem rlh svh svw turn vb vh vi vmax vmin vw
)";

constexpr QStringView sql = uR"(
abs action add after all alter analyze and any array as asc authorization avg before begin between bigint binary bit blob
boolean both by call cascade case cast char character check clob close coalesce collate column commit concat constraint
convert count create cross current current_date current_time current_timestamp current_user cursor database date datetime
day deallocate dec decimal declare default deferrable deferred delete desc describe distinct double drop each else elsif end
escape except exec execute exists explain extract false fetch first float for foreign from full function global grant group
having hour identity if immediate in increment index inner inout inout input insert int integer intersect interval into is
isolation join key last leading left length level like limit local lower match max min minute month natural nchar next no
not null nullif numeric nvarchar of offset on only open option or order out outer over partition position precision prepare
primary prior privileges procedure public range read real recursive references replace restrict return returning returns
revoke right role rollback row rowid rownum rows savepoint schema second select sequence serial session set size smallint some
sql start substring sum table temporary text then time timestamp timezone tinyint to top trailing transaction trigger trim
true truncate union unique unknown update upper use user using values varbinary varchar varying view when where while with
work year zone
)";

void addWords(std::set<QString> &names, QStringView text)
{
    for (TextPlace word = nextWord(text, 0); word.length > 0; word = nextWord(text, word.end()))
        names.insert(text.sliced(word.start, word.length).toString().toLower());
}

} // namespace

int main()
{
    const std::string styles(std::istreambuf_iterator<char>(std::cin), {});
    std::set<QString> names;
    addWords(names, languageWords().join(u'\n'));
    addWords(names, units);
    addWords(names, sql);
    addWords(names, QString::fromStdString(styles));
    for (const QString &name : names)
        std::cout << name.toStdString() << '\n';
    return !styles.empty() && std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
