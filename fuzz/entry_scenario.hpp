// The lines of the scenario language.
#pragma once

#include "app/scenario_words.hpp"
#include "entries.hpp"
#include "screens/event.hpp"

namespace kolvar::fuzz {

// Runs `work`; a scenario that is wrong is told so.
template <class Work>
void unless_wrong(Work&& work) {
    try {
        work();
    } catch (const scenario::Wrong& wrong) {
        require(!wrong.what.empty());
    }
}

inline void read_line(std::string_view line) {
    std::vector<scenario::Word> words;
    unless_wrong([&] { words = scenario::split_words(line); });
    for (const scenario::Word& word : words) {
        require(word.from < line.size());
        unless_wrong([&] { require(!scenario::parse_address(word.text).window.empty()); });
        unless_wrong([&] {
            for (const auto& range : scenario::parse_field(word.text).indices)
                require(range.first >= 0 && range.last >= 0);
        });
    }
    unless_wrong([&] {
        for (scenario::Words values(line); !values.at_end();) {
            require(!values.rest().empty() && values.rest().size() <= line.size());
            if (values.take("value") || values.take("within")) continue;
            const Value value = values.value();
            require(!value.is_number() || std::isfinite(value.number()));
        }
    });
    unless_wrong([&] {
        scenario::Words mixed(line);
        mixed.word("a command");
        mixed.path();
        mixed.whole("a number");
        mixed.text("a text");
        mixed.finish();
    });
}

// Every line is read or told to be wrong, and any text that is quoted reads back as it was.
inline void scenario(Bytes bytes) {
    const std::string text = to_text(text_of(bytes));
    LineReader lines(text);
    while (!lines.at_end()) read_line(lines.next());
    const std::string quoted = scenario_quoted(text);
    require(quoted.find_first_of("\r\n\t") == std::string::npos);
    const auto words = scenario::split_words("write a.csv " + quoted);
    require(words.size() == 3 && words[2].quoted && words[2].text == text);
}

}  // namespace kolvar::fuzz
