// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary data files of the completion: each row lies within what it belongs to, and what the maker makes of a file
// can be read.
#include "completion/completiondata.h"
#include "completion/datamaker.h"
#include "completion/linkedsheets.h"
#include "fuzz/fuzztarget.h"

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

void checkRows(const QByteArray &file)
{
    const CompletionData data(file);
    for (const char kind : {'A', 'T', 'S', 'V', 'P', '@', ':'}) {
        for (const DataRow *row : data.rows(kind)) {
            check(row->kind == kind && (data.find(kind, row->name) || kind == 'A' || kind == 'V'));
            if (kind == 'T') {
                for (const DataRow *attribute : data.attributesOf(row->name)) {
                    check(attribute->kind == 'A');
                    for (const DataRow &value : data.valuesOfAttribute(row->name, attribute->name))
                        check(value.kind == 'V');
                }
            } else if (kind == 'P') {
                for (const DataRow &value : data.valuesOfProperty(row->name))
                    check(value.kind == 'V');
            }
        }
    }
}

} // namespace

FUZZ_TARGET(completiondata)
{
    const QByteArray file = zephira::fuzz::inputBytes(data, size);
    checkRows(file);
    const auto lines = completionLines(file);
    if (lines)
        checkRows(lines.value());
    const QString path = linkedPath(file, u"/site/"_s, u"/root"_s);
    check(path.isEmpty() || path.startsWith(u'/'));
    return 0;
}
