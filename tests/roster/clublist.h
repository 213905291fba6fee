// SPDX-License-Identifier: MIT
// Made-up members in the shapes that the club's lists have had, and a merge written the long
// way round, to compare with.
#pragma once

#include <array>
#include <random>
#include <string>
#include <vector>

namespace vantrel::test {

struct ListedMember {
    std::string number, call, name, state;
};

// `count` members, no two with one call: prefixes from everywhere, every award letter, one to
// five digits, blank, long and lower-case names; the same for the same seed.
inline std::vector<ListedMember> madeUpMembers(int count, unsigned seed = 1) {
    static constexpr std::array prefixes{"W", "K",  "N",  "A",  "KA", "WB", "AA", "NX", "ve",
                                         "G", "DL", "JA", "9A", "3Z", "VK", "ZL", "PY", "LZ"};
    static constexpr std::array names{"JOHN", "Bob",      "Christopher J", "",  "  Ann ",
                                      "jean", "Bj\xF6rn", "M. Eilert",     "X", "O'Neil"};
    static constexpr std::array states{"MA", "ny", "CA ", "", "ONT", "DLX4", " G"};
    static constexpr std::array awards{"", "C", "T", "S", "", "C"};
    std::mt19937 random(seed);
    const auto pick = [&random](const auto& from) {
        return std::string(from[random() % from.size()]);
    };
    std::vector<ListedMember> members;
    for (int i = 0; i < count; ++i) {
        std::string suffix;
        for (int rest = i; suffix.size() < 3 || rest > 0; rest /= 26)
            suffix += static_cast<char>('A' + rest % 26);
        const std::string portable = random() % 50 == 0 ? "/QRP/MOBILE" : "";
        const std::string call = pick(prefixes) + std::to_string(random() % 10) + suffix + portable;
        const std::string number = std::to_string(random() % (i % 7 == 0 ? 120 : 25000));
        members.push_back(
            {number + pick(awards), (i % 31 == 0 ? "  " : "") + call, pick(names), pick(states)});
    }
    return members;
}

// The line of "skccdata.txt"; every third one without its last separator.
inline std::string dataLine(const ListedMember& m, std::size_t i) {
    return m.number + "|" + m.call + "|" + m.name + "|Some, Town|" + m.state +
           "||1234|291|01 Jan 2010|02 Feb 2011|" + (i % 3 == 0 ? "" : "|");
}

// The line of "SKCCLIST.TXT" in its dated form.
inline std::string memberLine(const ListedMember& m, std::size_t i) {
    return std::to_string(i) + "|" + m.call + "|" + m.name + "|Town|" + m.state + "|2010-01-02|" +
           m.number + (i % 3 == 0 ? "" : "|");
}

// The five files as a patient clerk would keep them: for every member he walks the file from
// its top.
struct Clerk {
    std::array<std::vector<std::string>, 5> lines;
    int added = 0;
    int fixed = 0;

    static std::string column(std::string text, std::size_t width) {
        while (!text.empty() && text.front() == ' ')
            text.erase(0, 1);
        for (char& c : text) {
            if (c >= 'a' && c <= 'z')
                c = static_cast<char>(c - 'a' + 'A');
            if (c == '\xF6')
                c = '\xD6';
        }
        text += std::string(width, ' ');
        return text.substr(0, width);
    }

    static std::string numberColumn(const std::string& number) {
        const bool lettered = number.find_first_of("CT") != std::string::npos;
        std::string zeros;
        while (zeros.size() + number.size() - (lettered ? 1 : 0) < 4)
            zeros += "0";
        return column(zeros + number, 10);
    }

    static std::string record(const ListedMember& m) {
        return column(m.call, 10) + numberColumn(m.number) + column(m.name.substr(0, 10), 10) +
               column(m.state.substr(0, 3), 3);
    }

    void enter(const ListedMember& m) {
        std::string entry = record(m);
        const std::size_t letter = std::string("AKNW").find(entry[0]);
        std::vector<std::string>& file = lines[letter == std::string::npos ? 4 : letter];
        if (letter == 3)
            entry += std::string(199, ' ');
        for (std::string& line : file) {
            if (line.compare(0, 10, entry, 0, 10) != 0)
                continue;
            if (line.compare(10, 10, entry, 10, 10) != 0)
                ++fixed;
            line = entry;
            return;
        }
        file.push_back(entry);
        ++added;
    }

    std::string bytes(std::size_t file) const {
        std::string all;
        for (const std::string& line : lines[file])
            all += line + "\r\n";
        return all;
    }
};

} // namespace vantrel::test
