// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary lists of programs: a list that nothing is asked of stays as it is, and a program that is put in is there
// and can be taken out.
#include "desktop/mimeappslist.h"
#include "fuzz/fuzztarget.h"

using namespace zephira;

FUZZ_TARGET(mimeapps)
{
    const QByteArray text = zephira::fuzz::inputBytes(data, size);
    const QByteArray type = "text/html";
    const QByteArray program = "zephira-test.desktop";
    MimeAppsList list(text);
    check(list.text() == text);
    list.prefer(type, program);
    check(list.defaults(type).value(0) == program);
    list.add(type, program);
    const QByteArray added = list.text();
    list.add(type, program);
    check(list.text() == added);
    list.takeOutOfDefaults(type, program);
    check(!list.defaults(type).contains(program));
    list.takeOut(type, program);
    check(!MimeAppsList(list.text()).defaults(type).contains(program));
    return 0;
}
