// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary habits of spelling: a text that is written by them reads as the same text.
#include "fuzz/fuzztarget.h"
#include "web/designer/characterspans.h"
#include "web/designer/entityhabits.h"

using namespace zephira;

FUZZ_TARGET(entityhabits)
{
    QString source = zephira::fuzz::inputText(data, size);
    QString characters = zephira::fuzz::takenLine(source);
    characters.remove(u'\r');
    for (const bool isXml : {false, true}) {
        for (const EntityHabits::Place place : {EntityHabits::Place::Text, EntityHabits::Place::Value}) {
            EntityHabits habits(place);
            habits.learn(source);
            habits.setXml(isXml);
            EntityHabits::Progress progress;
            habits.expect(characters, progress);
            const References references = place == EntityHabits::Place::Text ? References::InText : References::InValue;
            for (const QString &written : {habits.write(characters, &progress), habits.write(characters)}) {
                QString read;
                appendRead(written, references, read);
                check(read == characters);
            }
        }
    }
    readEngineText(source);
    return 0;
}
