// SPDX-License-Identifier: GPL-3.0-or-later
// What the program asks of the library, whose exports are `exports`. Run in a function of its own.
const cache = {};
const isStyle = (syntax) => syntax === "css" || syntax === "inline";

/** How many elements of a tree were made by repetition. */
function repeats(node) {
    let count = node.repeat ? 1 : 0;
    for (const child of node.children || [])
        count += repeats(child);
    return count;
}

return {
    find(line, caret, syntax) {
        const type = isStyle(syntax) ? "stylesheet" : "markup";
        // A bracket behind the caret may belong to the abbreviation; or it, or a quote, to the text around it.
        const found = exports.extract(line, caret, { type, lookAhead: true })
            || exports.extract(line, caret, { type, lookAhead: false });
        return found ? [found.abbreviation, found.start, found.end] : [];
    },

    /** Returns text and fields, or nothing if more is repeated than `most`. */
    expand(abbreviation, syntax, lineEnd, indent, baseIndent, wrapped, most) {
        const text = wrapped.length > 0 ? wrapped : undefined;
        const maxRepeat = most + 1;
        if (!isStyle(syntax) && repeats(exports.markupAbbreviation(abbreviation, { maxRepeat, text })) > most)
            return [];
        const fields = [];
        const config = {
            type: isStyle(syntax) ? "stylesheet" : "markup",
            syntax: isStyle(syntax) ? "css" : syntax,
            maxRepeat,
            text,
            cache,
            options: {
                "output.newline": syntax === "inline" ? " " : lineEnd,
                "output.indent": indent,
                "output.baseIndent": syntax === "inline" ? "" : baseIndent,
                "output.field": (number, placeholder, offset) => {
                    const shown = placeholder || "";
                    fields.push(number, offset, shown.length);
                    return shown;
                },
            },
        };
        return [exports.default(abbreviation, config), fields];
    },
};
