// The parser of the document, which calls the reader for each part, and its error messages. The
// parser stores open objects and lists in a list, so nesting does not use the stack.
// SPDX-License-Identifier: MIT
#include "document/read_network.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>

#include "document/json_text.h"
#include "document/network_reader.h"

namespace vexil::tool {
namespace {

using nlohmann::json;

// The line and column of a place, as a compiler names them; the column is in bytes.
std::string PlaceInText(std::string_view document, std::size_t at) {
    const std::string_view before = document.substr(0, at);
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    const std::size_t lineBegin = before.rfind('\n') + 1;  // 0 in the first line
    return "line " + std::to_string(line) + ", column " + std::to_string(at - lineBegin + 1);
}

// Returns the message of the parser without the position and without the last text read, which
// can be long.
std::string Reason(std::string_view message) {
    constexpr std::string_view PlaceEnd = ": ";
    constexpr std::string_view LastRead = "; last read: ";
    constexpr std::string_view Expected = "; expected ";
    const std::size_t column = message.find("column ");
    const std::size_t begin = message.find(PlaceEnd, column);
    if (column == std::string_view::npos || begin == std::string_view::npos) {
        return "no JSON";
    }
    const std::string_view text = message.substr(begin + PlaceEnd.size());
    const std::size_t last = text.find(LastRead);
    const std::size_t expected = text.rfind(Expected);
    std::string reason(text.substr(0, std::min(last, expected)));
    if (expected != std::string_view::npos) {
        reason += text.substr(expected);
    }
    return reason;
}

class Events : public json::json_sax_t {
  public:
    Events(std::string_view text, DocumentResult& documentResult)
        : document(text), result(documentResult), reader(documentResult) {}

    bool null() override { return reader.Scalar(nullptr); }
    bool boolean(bool value) override { return reader.Scalar(value); }
    bool number_integer(number_integer_t value) override { return reader.Scalar(value); }
    bool number_unsigned(number_unsigned_t value) override { return reader.Scalar(value); }
    bool number_float(number_float_t value, const string_t& /*text*/) override {
        return reader.Scalar(value);
    }
    bool string(string_t& value) override { return reader.Scalar(std::string_view(value)); }
    bool binary(binary_t& /*value*/) override { return false; }  // JSON has no binary values
    bool start_object(std::size_t /*size*/) override { return reader.BeginObject(); }
    bool key(string_t& name) override { return reader.Key(name); }
    bool end_object() override { return reader.EndObject(); }
    bool start_array(std::size_t /*size*/) override { return reader.BeginList(); }
    bool end_array() override { return reader.EndList(); }

    bool parse_error(std::size_t position, const std::string& lastToken,
                     const json::exception& error) override {
        constexpr int NumberOverflow = 406;
        result.fault = PlaceInText(document, std::min(position, document.size() + 1) - 1) + ": ";
        if (error.id == NumberOverflow) {
            result.fault += reader.Path() + ": the number " + JsonExcerpt(lastToken) +
                            " is out of the range of numbers with double precision";
        } else {
            result.fault += Reason(error.what());
        }
        return false;
    }

  private:
    std::string_view document;
    DocumentResult& result;
    NetworkReader reader;
};

}  // namespace

DocumentResult ReadNetwork(std::string_view document, std::size_t mostChanges) {
    DocumentResult result(mostChanges);
    Events events(document, result);
    json::sax_parse(document.begin(), document.end(), &events);
    return result;
}

}  // namespace vexil::tool
