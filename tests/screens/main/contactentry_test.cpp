// SPDX-License-Identifier: MIT
// Games of random events on the contact being entered, played beside a plain model of it: after
// each event both show the same, and have logged the same. VANTREL_GAME=n plays that one alone.
#include "output/score/score.h"
#include "rig/rigs.h"
#include "screens/main/contactentry.h"
#include "support/fakemachine.h"

namespace vantrel::test {
namespace {

using Lines = std::vector<std::string>;

const std::map<std::string, std::array<std::string, 3>> members{{"K1ABC", {"JOE", "CT", "0123T"}},
                                                                {"K1NEW", {"ANN", "MA", "0005C"}},
                                                                {"K9SKC", {"CLUB", "IL", "5000S"}},
                                                                {"KA1NN", {"", "NH", "9010"}}};
const std::map<std::string, std::string> owners{{"123", "K1ABC"}, {"5000", "K9SKC"}, {"31", ""}};
const Lines typedCalls{"K1ABC", "K1AB", "K1ABCD", "K1NEW", "K9SKC", "KA1NN", "W5NEW", "W5NEW",
                       "w1aw ", "31",   "123",    "5000",  "/A",    "K1",    ""};

class Game : FakeMachine {
public:
    explicit Game(unsigned number) : m_random(number) {
        std::string records;
        for (const auto& [call, fills] : members)
            records += padded(call, 10) + padded(fills[2], 10) + padded(fills[0], 10) +
                       padded(fills[1], 3) + "\r\n";
        folder.write("SKSDB2.TXT", records);
        settings = {"W1ABC", pick({"SKS", "SKSE", "WES", "K3Y"}), "0", "None", "JOHN", "MA",
                    "1234T"};
        settings.rig = "FTdx5000";
        settings.dupeMode = pick({"YES", "NO"});
        entry.opened();
        for (int i = upTo(12); i > 0; --i)
            log.push_back(someLine());
        write(log);
        module.log.open("SKS.CBR");
    }

    void play(int steps) {
        for (int step = 0; step < steps && !::testing::Test::HasFailure(); ++step) {
            const int next = searched ? 11 + upTo(2) : boxes.call.empty() ? 0 : 16;
            const int event = chance(50) ? next : upTo(20); // mostly as a contact is made
            SCOPED_TRACE("step " + std::to_string(step) + ", event " + std::to_string(event) +
                         " on " + textOf(entry.view()));
            happen(event);
            compare();
        }
    }

private:
    // --- What comes at random ---

    int upTo(int n) { return std::uniform_int_distribution(0, n)(m_random); }
    bool chance(int percent) { return upTo(99) < percent; }
    std::string pick(const Lines& of) {
        return of[static_cast<std::size_t>(upTo(static_cast<int>(of.size()) - 1))];
    }
    // Half of them have the call that is being entered, or are on its band.
    std::string someLine() {
        const std::string khz = khzField(completedFrequency(mhz));
        const Lines khzs{"14050", " 7040", " 3550", "50125", "29050"};
        const Lines workedCalls{"K1ABC", "K1ABCD", "W5NEW", "K9SKC", "K1NEW"};
        return vantrel::test::contactLine(
            {.frequency = khzFault(khz, "").empty() && chance(50) ? khz : pick(khzs),
             .time = std::to_string(1000 + upTo(8999)),
             .hisCall = canBeLogged(boxes) && chance(50) ? boxes.call : pick(workedCalls),
             .hisState = pick({"CT", "IL", ""}),
             .hisNumber = pick({"0123T", "77S", "5000S", ""})});
    }
    void write(const Lines& lines) {
        std::string bytes = logHeaderLines;
        for (const std::string& line : lines)
            bytes += line + "\r\n";
        folder.write("SKS.CBR", bytes);
    }
    Lines logged() const { return {module.log.contacts().begin(), module.log.contacts().end()}; }

    // By another hand: a contact more, one less, or another one for it.
    void changeLog(bool toldByPage) {
        Lines lines = logged();
        const std::string was = lines.empty() || chance(33) ? "" : pick(lines);
        const std::string now = was.empty() || chance(50) ? someLine() : "";
        if (!was.empty())
            lines.erase(std::find(lines.begin(), lines.end(), was));
        if (!now.empty())
            lines.push_back(now);
        write(lines);
        module.log.reread();
        read.log = lines;
        if (!toldByPage)
            return;
        logIs(lines);
        if (was.empty() || (now.empty() && isInLog(was)))
            return;
        const ContactChange change =
            now.empty() ? ContactChange::deleted : ContactChange::corrected;
        const std::string& line = now.empty() ? was : now;
        entry.contactChanged(change, line);
        if (trim(boxes.call + boxes.name + boxes.state + boxes.number).empty())
            says(changedHint(change, line).text, line, !now.empty());
    }

    struct {
        bool done = false, dropped = false;
        ReadResult result{};
        Lines log{};
    } read; // of the radio, and what happened meanwhile

    ReadResult readRadio() {
        read = {true, chance(5) && !entry.view().boxes.call.empty(), {}, logged()};
        if (chance(10))
            changeLog(false);
        if (read.dropped)
            std::ignore = entry.dropped();
        const ReadOutcome outcomes[] = {ReadOutcome::cancelled, ReadOutcome::noReader,
                                        ReadOutcome::failed, ReadOutcome::read, ReadOutcome::read};
        read.result = {
            outcomes[upTo(4)], pick({"14.050", "7.040", "10.120", "3.550"}), {"NOT READ"}};
        for (const std::string& line : logged()) // on a band where he was worked
            if (line.substr(65).starts_with(entry.view().boxes.call) && chance(30))
                read.result.frequency = frequencyAsEntered(line.substr(5, 5));
        return read.result;
    }

    // --- The model ---

    std::string bandTag() const { return bandTagOf(completedFrequency(mhz)); }
    std::string marker() const { return marked ? "DUPE" : tag; }
    bool isInLog(const std::string& line) const {
        return std::count(log.begin(), log.end(), line) > 0;
    }
    std::string dupe(const std::string& call) const {
        for (const std::string& line : log)
            if (line.substr(5, 2) == bandTag() && line.substr(65).starts_with(call))
                return line;
        return "";
    }
    // line: the text holds as long as that is in the log, or is not.
    void says(const std::string& text, const std::string& line = "", bool inLog = true) {
        happened = {text, line, inLog};
    }
    void logIs(const Lines& lines) {
        log = lines;
        const auto [text, line, inLog] = happened;
        if (!line.empty() && isInLog(line) != inLog)
            says("");
    }
    void clear(const std::string& left = "") {
        if (!trim(boxes.call).empty())
            cleared = {boxes, tinted};
        boxes = {left, left, left, left, "599", "599", boxes.frequency};
        tinted = {};
        searched = marked = again = false;
        says("");
    }
    void drop() {
        const auto before = happened;
        clear();
        if (!std::get<1>(before).empty())
            happened = before;
        station = noStationLabel;
    }
    void bringBack() {
        if (!cleared)
            return;
        cleared->first.frequency = boxes.frequency;
        std::tie(boxes, tinted) = *std::exchange(cleared, std::nullopt);
        again = true;
        says("");
    }
    void forgetLookup() {
        for (std::size_t i = 0; i < tinted.size(); ++i)
            if (std::exchange(tinted[i], false))
                boxes.*lookupFields[i].box = "";
    }
    void edit(const Entry& typed) {
        const Entry before = std::exchange(boxes, typed);
        for (std::size_t i = 0; i < tinted.size(); ++i)
            tinted[i] = tinted[i] && boxes.*lookupFields[i].box == before.*lookupFields[i].box;
        if (typed.frequency != before.frequency || typed == before)
            return; // counts once it is entered
        says("");
        if (!searched || typed.call != before.call)
            takenBack = "";
        if (typed.call == before.call)
            return;
        searched = marked = false;
        forgetLookup();
    }
    // False, here and below: what is being done ends there.
    bool test() {
        testedOn = bandTag();
        const std::string found = dupe(boxes.call);
        dupeScreen = dupeScreen || !found.empty();
        if (!found.empty() && settings.dupeMode == "NO") {
            clear();
            says(refusedHint(found).text, found);
            return false;
        }
        marked = !found.empty();
        tag = marked ? noMarker : tag;
        if (settings.isK3y() &&
            isK3yDupe({log.begin(), log.end()}, boxes.call, boxes.number, testedOn))
            told.emplace_back(duplicateQsoText);
        return true;
    }
    bool tune(const std::string& frequency) {
        boxes.frequency = mhz = frequency;
        band = bandTextOf(mhz, band);
        return !searched || testedOn == bandTag() || test();
    }
    bool enter() { return tune(frequencyAsEntered(boxes.frequency)); }
    bool takeRadio(bool asked) {
        if (!autoReads && !asked)
            return true;
        EXPECT_TRUE(std::exchange(read.done, false)) << "the radio was not read";
        logIs(read.log);
        if (read.dropped)
            drop();
        stays = read.result.outcome == ReadOutcome::cancelled;
        if (read.dropped || stays)
            return false;
        if (read.result.outcome == ReadOutcome::noReader && asked)
            says(rigNeeds(settings.rig));
        if (read.result.outcome == ReadOutcome::failed)
            told.emplace_back("NOT READ");
        return read.result.outcome != ReadOutcome::read || tune(read.result.frequency);
    }
    void search() {
        if (!enter())
            return;
        if (boxes.number.size() > 1 && !again)
            return logNow();
        again = searched = marked = false;
        takenBack = "";
        says("");
        const std::string call = boxes.call = trim(boxes.call);
        if (call.empty() || (call.size() < 3 && call[0] > '@'))
            return;
        outcome = members.contains(call)  ? LookupOutcome::found
                  : owners.contains(call) ? LookupOutcome::callOfNumber
                                          : LookupOutcome::notFound;
        for (std::size_t i = 0; i < tinted.size() && outcome == LookupOutcome::found; ++i) {
            boxes.*lookupFields[i].box = padded(members.at(call)[i], i == 1 ? 3 : 10);
            tinted[i] = true;
        }
        if (outcome == LookupOutcome::callOfNumber)
            boxes.call = owners.at(call).empty() ? "" : padded(owners.at(call), 10);
        if (boxes.call.empty())
            return says("NO MEMBER " + call);
        if (!takeRadio(false))
            return;
        if (mhz.empty()) {
            told.emplace_back(frequencyMissingText);
            boxes.call = "";
            return forgetLookup();
        }
        tune(completedFrequency(mhz));
        takenBack = trim(std::exchange(tag, noMarker));
        station = noStationLabel;
        searched = true;
        nameMissing = test() && trim(boxes.name).empty();
    }
    std::array<std::string, 3> inLog() const {
        std::array<std::string, 3> fills;
        for (const std::string& line : log)
            if (line.substr(65, 10) == padded(boxes.call, 10))
                fills = {std::string(trim(line.substr(80, 10))),
                         std::string(trim(line.substr(91, 3))),
                         std::string(trim(line.substr(95, 6)))};
        bool useful = false;
        for (std::size_t i = 0; i < 3; ++i)
            useful |= !fills[i].empty() && trim(boxes.*lookupFields[i].box).empty();
        const bool asked = searched && outcome == LookupOutcome::notFound;
        return asked && useful ? fills : decltype(fills){};
    }
    void fillIn() {
        const auto fills = inLog();
        for (std::size_t i = 0; i < 3; ++i)
            if (!fills[i].empty() && trim(boxes.*lookupFields[i].box).empty()) {
                boxes.*lookupFields[i].box = fills[i];
                tinted[i] = true;
            }
    }
    void logNow() {
        if (trim(boxes.call).size() < 3 || !takeRadio(false) || !tune(completedFrequency(mhz)))
            return;
        if (const auto problem = problemOfBand(); !problem.empty()) {
            const bool known = problem.ends_with("REFUSES IT");
            told.push_back(known ? mhz + std::string(wrongBandText)
                                 : std::string(frequencyMissingText));
            return known ? clear() : void();
        }
        const std::string line = lineNow();
        asks = settings.isK3y() && isK3yDupe({log.begin(), log.end()}, line.substr(65, 10),
                                             line.substr(95, 6), line.substr(5, 2));
        if (asks)
            return;
        append(line);
        station = noStationLabel;
    }
    void append(const std::string& line) {
        const std::string repeated = line.ends_with("DUPE") ? "" : dupe(line.substr(65, 10));
        log.push_back(line);
        clear();
        cleared.reset();
        takenBack = "";
        says(loggedHint(line, repeated).text, line);
    }
    std::string lineNow() const {
        Entry completed = boxes;
        completed.frequency = completedFrequency(mhz);
        return vantrel::contactLine(completed, settings, marker(), {"0012", "2011-06-16"});
    }
    std::string problemOfBand() const {
        const std::string full = completedFrequency(mhz);
        if (!settings.isK3y() && isOutsideSprintBands(full, khzField(full)))
            return full + " IS NO SPRINT BAND: LOG REFUSES IT";
        return khzFault(khzField(full), mhz);
    }

    // --- Both ---

    void both(const vantrel::Answer& answer, const std::function<void()>& event) {
        dupeScreen = asks = stays = false;
        told.clear();
        event();
        EXPECT_FALSE(std::exchange(read.done, false)) << "the radio was read";
        Lines boxTexts = std::exchange(failures, {});
        for (const Message& message : answer.messages)
            boxTexts.push_back(message.text);
        EXPECT_EQ(boxTexts, told);
        EXPECT_EQ(answer.dupeScreen, dupeScreen);
        EXPECT_EQ(answer.asksAboutDupe, asks);
        EXPECT_EQ(answer.toCallBox, !asks && !stays);
        if (!answer.asksAboutDupe)
            return;
        compare(); // all is still in the boxes
        if (chance(50))
            both(entry.logAsDupe(), [&] { append(lineNow().substr(0, 101) + "DUPE"); });
        else
            both(entry.droppedDupe(), [&] { clear(" "); });
    }

    void happen(int event) {
        if (event < 6) {
            Entry typed = boxes;
            std::string* const box[] = {&typed.call,  &typed.call,   &typed.name,
                                        &typed.state, &typed.number, &typed.frequency};
            *box[event] = event < 2   ? pick(typedCalls)
                          : event < 5 ? pick({"", "TX", "77S", "7"})
                                      : pick({"14.050", "7040", "10120", "QRL", "", "50125", "14"});
            entry.edited(typed);
            return edit(typed);
        }
        switch (event) {
        case 6:
            return changeLog(true);
        case 7:
            module.marker = tag = chance(80) ? "K3Y/EU" : std::string(noMarker);
            entry.tagChosen(station = tag);
            marked = false;
            return takenBack.clear();
        case 8:
            return both(entry.broughtBack(), [&] { bringBack(); });
        case 9:
            return both(entry.dropped(), [&] { drop(); });
        case 10:
            if (chance(50))
                return both(entry.frequencyLeft(), [&] { stays = enter(); });
            return both(entry.frequencyEntered(), [&] { enter(); });
        case 11:
            return both(entry.bandUp(),
                        [&] { enter() && tune(std::string(bandUp(band).defaultFrequency)); });
        case 12:
            if (chance(autoReads ? 10 : 60))
                return both(entry.autoReadToggled(), [&] { autoReads = !autoReads; });
            return both(entry.radioAsked(), [&] { takeRadio(true); });
        case 13:
        case 14:
            return both(entry.log(), [&] { enter() ? logNow() : void(); });
        case 15:
            return both(entry.filledFromLog(), [&] { fillIn(); });
        default:
            return both(entry.search(), [&] { search(); });
        }
    }

    static std::string textOf(const EntryView& v) {
        const Entry& e = v.boxes;
        return e.call + '|' + e.name + '|' + e.state + '|' + e.number + '|' + e.frequency + '|' +
               v.bandText + '|' + v.station + '|' + v.nextMarker + '|' + v.hint.text;
    }

    void compare() {
        const EntryView view = entry.view();
        EXPECT_EQ(logged(), log);
        EXPECT_EQ(view.lookedUp, tinted);
        EXPECT_EQ(entry.spaceLeadsOn(), searched && nameMissing);
        EXPECT_EQ(entry.spaceFillsIn(), (inLog() != std::array<std::string, 3>{}));
        EntryView wanted{.boxes = boxes, .bandText = band, .station = station};
        wanted.nextMarker = marker() == noMarker ? "" : "NEXT QSO: " + marker();
        const Hint behind = joined({std::get<0>(happened)}, takenBackHint(takenBack));
        const std::size_t before =
            behind.text.empty() ? view.hint.text.size() : view.hint.text.rfind("   " + behind.text);
        wanted.hint = joined({searched ? hint(view.hint.text.substr(0, before)) : ""}, behind);
        EXPECT_EQ(textOf(view), textOf(wanted));
        compareLists(view);
    }
    // What is shown of the score is taken over where it is right.
    std::string hint(const std::string& shown) {
        const std::string problem = problemOfBand();
        std::string missing;
        for (std::size_t i = 0; i < 3; ++i)
            if (trim(boxes.*lookupFields[i].box).empty())
                missing += (missing.empty() ? "NOT IN THE ROSTER: " : ", ") +
                           Lines{"NAME", "STATE", "SKCC#"}[i];
        std::string known;
        for (const std::string& text : inLog())
            known += text.empty() ? "" : ' ' + text;
        if (!known.empty())
            missing = "IN THE LOG:" + known + " - SPACE FILLS IN";
        if (outcome == LookupOutcome::notFound && !missing.empty())
            return missing + (problem.empty() ? "" : "   " + problem);
        if (!problem.empty())
            return problem;
        if (boxes.number.size() < 2)
            return "ENTER LOOKS HIM UP";
        if (trim(boxes.call).size() < 3)
            return "";
        Lines lines = log;
        const auto score = [&] { return computeScore({lines.begin(), lines.end()}, settings); };
        const Score now = score();
        lines.push_back(lineNow());
        if (settings.isK3y())
            return "ENTER LOGS";
        const Score then = score();
        const auto says = [&](const char* words) { return shown.find(words) != shown.npos; };
        EXPECT_EQ(says("DUPE: +0"), marked && *now.total == *then.total);
        EXPECT_EQ(says("NEW "), *now.multipliers != *then.multipliers);
        return shown;
    }

    void compareLists(const EntryView& view) {
        const std::string typed(trim(boxes.call));
        std::map<std::string, bool> worked; // and whether on this band
        for (const std::string& line : log)
            if (line.substr(65).starts_with(typed))
                worked[std::string(trim(line.substr(65, 10)))] |= line.substr(5, 2) == bandTag();
        EXPECT_EQ(view.worked.size(), typed.size() < 2 ? 0 : worked.size());
        for (const WorkedCall& call : view.worked)
            EXPECT_EQ(call.dupe, worked.at(call.call)) << call.text;
        for (const MemberLine& member : entry.members())
            EXPECT_EQ(member.dupe, !dupe(member.call + ' ').empty()) << member.call;
        const BandTable& bands = view.bands;
        EXPECT_TRUE(bands.call.empty() || worked.contains(bands.call));
        EXPECT_TRUE(bands.call == typed || !worked.contains(typed) || typed.empty());
        for (const BandRow& row : bands.rows)
            EXPECT_EQ(row.onBand == CallOnBand::dupe,
                      row.present && !bands.call.empty() && worked.at(bands.call));
    }

    std::mt19937 m_random;
    OperatingSettings& settings = module.settings;
    Lines failures; // of the radio, told at once
    ContactEntry entry{module,
                       platform,
                       {[this] { return readRadio(); },
                        [this](const Message& message) { failures.push_back(message.text); }}};
    Log::Watch watch = module.log.watch([this] { entry.logChanged(); });

    Lines log;
    Entry boxes{"", "", "", "", "599", "599", "14.050"};
    LookedUp tinted{};
    std::string mhz = "14.050", band = "20 Meters ", tag{noMarker}, station{noStationLabel};
    std::string testedOn, takenBack;
    bool searched = false, marked = false, again = false, nameMissing = false, autoReads = true;
    LookupOutcome outcome{};
    std::tuple<std::string, std::string, bool> happened;
    std::optional<std::pair<Entry, LookedUp>> cleared;
    bool dupeScreen = false, asks = false, stays = false; // of the present event
    Lines told;
};

TEST(ContactEntry, ShowsAndLogsWhatAPlainModelOfItDoes) {
    const char* chosen = std::getenv("VANTREL_GAME");
    const bool isLong = std::getenv("VANTREL_LONG") != nullptr;
    const bool isSlow = std::getenv("VANTREL_SLOW_FILES") != nullptr; // Wine's
    const unsigned first = chosen != nullptr ? static_cast<unsigned>(std::stoul(chosen))
                           : isLong          ? std::random_device()()
                                             : 1;
    const unsigned games = chosen != nullptr ? 1 : isLong ? 2000 : isSlow ? 12 : 60;
    for (unsigned game = first; game != first + games && !HasFailure(); ++game) {
        SCOPED_TRACE("VANTREL_GAME=" + std::to_string(game));
        Game(game).play(80);
    }
}

} // namespace
} // namespace vantrel::test
