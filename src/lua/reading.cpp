#include "lua/reading.h"

namespace quillfen::lua {

std::string_view words(Fault fault)
{
    switch (fault) {
    case Fault::None:
        return {};
    case Fault::QuoteInText:
        return "a quote inside the text ends it there. Take the quote out, or write ' instead.";
    case Fault::BackslashAtEnd:
        return "a backslash before the closing quote makes the quote a part of the text. Take the backslash "
               "out.";
    case Fault::OpenText:
        return "the text has no closing quote. Put one at its end.";
    case Fault::OpenLongText:
        return "a text in double brackets is never closed. Close it as it was opened.";
    case Fault::NestedLongText:
        return "double brackets stand within double brackets. Take the inner ones out.";
    case Fault::OpenComment:
        return "a comment is never closed. Close it as it was opened.";
    case Fault::UnknownEscape:
        return "a backslash stands before a character that it doesn't go with. Take the backslash out.";
    case Fault::NotANumber:
        return "what begins with a digit here is no number. Write digits alone.";
    case Fault::NoValue:
        return "there is no value. Enter one.";
    case Fault::NoComma:
        return "there is no comma at the end of the line. Put one there.";
    case Fault::OpenTable:
        return "the table that opens here is never closed. Close it with a brace.";
    case Fault::BraceWithoutTable:
        return "a brace closes a table that was never opened. Take it out.";
    case Fault::NilKey:
        return "nil can't be a key. Write another one.";
    case Fault::MarkedAsUtf8:
        return "the file begins with a mark of UTF-8. Save it without the mark.";
    case Fault::Stray:
        return "something stands here that belongs to no value. Take it out.";
    case Fault::Computes:
        return "something is computed or called here. Write a plain value.";
    case Fault::TooDeep:
        return "too many tables stand within each other here. Write fewer.";
    case Fault::TooLong:
        return "the file holds too many values. Split it.";
    }
    return {};
}

} // namespace quillfen::lua
