#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""makehtml.py BYTES FILE: writes a page of exactly BYTES bytes.

The page has what real pages consist of: headings, paragraphs with inline markup, tables, forms, comments, style sheets and
scripts, with CR LF line ends. The same size always gives the same bytes.
"""

import random
import sys

WORDS = """page margin of a table cell the reader sees first when every picture is still on its way and nothing moves
about while fonts arrive because widths were given in the markup as they should be for menus lists forms and notes that
people print on paper naïve café größer élan shop order price weather map river mountain train station ticket""".split()

HEAD = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Catalogue</title>
<link rel="stylesheet" href="styles/main.css" media="screen">
</head>
<body onload="start()">
"""
TAIL = "</body>\n</html>\n"


def sentence(dice, low, high):
    return " ".join(dice.choices(WORDS, k=dice.randint(low, high)))


def paragraph(dice, number):
    lines = []
    for _ in range(dice.randint(2, 6)):
        inline = dice.choice(('<b>{}</b>', '<em class="note">{}</em>', '<a href="page{n}.html#top">{}</a>', "{} &amp; {n}",
                              '<span style="color: #336699">{}</span>', "{} &copy; &#8364;{n}"))
        lines.append(f"  {sentence(dice, 5, 14)} {inline.format(sentence(dice, 1, 4), n=number)} {sentence(dice, 2, 8)}.")
    return f'<p id="p{number}" class="text">\n' + "<br>\n".join(lines) + "\n</p>\n"


def table(dice, number):
    rows = "".join(
        f'  <tr class="row{row % 2}">\n'
        + "".join(f'    <td align="right" width="{dice.randint(20, 200)}">{sentence(dice, 1, 3)}</td>\n' for _ in range(4))
        + "  </tr>\n"
        for row in range(dice.randint(3, 8))
    )
    return f'<table id="t{number}" border="0" cellpadding="2" cellspacing="0">\n{rows}</table>\n'


def form(dice, number):
    options = "".join(f'    <option value="{value}">{sentence(dice, 1, 2)}</option>\n' for value in range(dice.randint(2, 6)))
    return (f'<form action="/cgi-bin/order.pl?id={number}" method="post">\n'
            f'  <input type="text" name="field{number}" value="{sentence(dice, 1, 3)}" size="40" required>\n'
            f'  <select name="choice{number}">\n{options}  </select>\n'
            f'  <textarea rows="4" cols="60">{sentence(dice, 3, 20)}</textarea>\n'
            '  <input type="submit" value="Send">\n</form>\n')


def script(dice, number):
    return (f'<script type="text/javascript">\n// {sentence(dice, 3, 9)}\nfunction step{number}(list, limit) {{\n'
            f'  var total = 0x{number:x}, name = "{sentence(dice, 1, 3)}";\n'
            "  for (var i = 0; i < list.length && i < limit; i++) {\n"
            f"    if (list[i].value === null) {{ continue; }} /* {sentence(dice, 2, 6)} */\n"
            f"    total += list[i].value * {dice.random():.3f};\n  }}\n"
            "  return name + ': ' + total.toFixed(2);\n}\n</script>\n")


def style(dice, number):
    return (f'<style type="text/css">\n#p{number} > a:hover, .row{number % 2} td {{\n'
            f"  margin: {dice.randint(0, 9)}px auto; color: #{dice.randrange(1 << 24):06x}; /* {sentence(dice, 1, 4)} */\n"
            f'  background: url("img/{number}.png") no-repeat;\n}}\n</style>\n')


def heading(dice, number):
    return f"<h{number % 6 + 1}>{number}. {sentence(dice, 2, 6)}</h{number % 6 + 1}>\n<!-- {sentence(dice, 3, 12)} -->\n"


def page(size, kinds=(paragraph, table, form, script, style, heading), weights=(10, 3, 1, 1, 1, 4)):
    """A page of exactly `size` bytes, at least a few hundred, with parts of the given kinds as often as their weights say."""
    dice = random.Random(20)
    parts = dice.choices
    pieces = [HEAD.replace("\n", "\r\n").encode()]
    length, number = len(pieces[0]), 0
    tail = TAIL.replace("\n", "\r\n").encode()
    while True:
        number += 1
        piece = parts(kinds, weights)[0](dice, number).replace("\n", "\r\n").encode()
        if length + len(piece) + len(tail) + 9 > size:
            break
        pieces.append(piece)
        length += len(piece)
    pieces.append(b"<!--" + b"-" * (size - length - len(tail) - 9) + b"-->\r\n")
    pieces.append(tail)
    return b"".join(pieces)


def line(size):
    """The bytes of a page of exactly `size` bytes that is one paragraph of plain words, without a line end."""
    dice = random.Random(21)
    words = b"<p>"
    while len(words) < size:
        words += " ".join(dice.choices(WORDS, k=10000)).encode() + b" "
    tail = b"</p>"
    return words[:size - len(tail)].decode(errors="ignore").encode().ljust(size - len(tail)) + tail


if __name__ == "__main__":
    with open(sys.argv[2], "wb") as file:
        file.write(page(int(sys.argv[1])))
