// SPDX-License-Identifier: MIT
// What the program finds on a machine with owners, links and devices that are files: files by names
// without case, folders and drives, the folder of its own files, the device behind a port.
#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/posix/seriallinks.h"
#include "platform/programfolder.h"
#include "support/machine.h"
#include "support/testing.h"

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;

// A machine made of a few files.
struct Machine : ::testing::Test {
    // "name/" is a folder, "name->target" a link, any other an empty file.
    void make(std::initializer_list<std::string> entries) const {
        for (const std::string& entry : entries)
            if (const std::size_t arrow = entry.find("->"); arrow != std::string::npos)
                fs::create_symlink(entry.substr(arrow + 2), at(entry.substr(0, arrow)));
            else if (entry.ends_with('/'))
                fs::create_directories(at(entry));
            else
                folder.write(entry, "");
    }
    std::string at(const std::string& name) const { return folder.string() + '/' + name; }

    TempFolder folder;
};

TEST_F(Machine, NamesAreFoundWithoutCaseAndNewOnesStayAsGiven) {
    make({"Logs/", "Logs/x.cbr", "a.cbr", "A.CBR", "\xE9.cbr", "\xC3\xA9.adi", "Link.cbr->gone"});
    const std::pair<const char*, const char*> rows[] = {
        {"LOGS/X.CBR", "Logs/x.cbr"},      {"LOGS\\//\\X.CBR", "Logs/x.cbr"},
        {"Gone\\New.CBR", "Gone/New.CBR"}, {"LOGS\\X.CBR\\New.CBR", "Logs/x.cbr/New.CBR"},
        {"LINK.CBR", "Link.cbr"},          {"A.CBR", "A.CBR"},
        {"\xC9.CBR", "\xC3\x89.CBR"}, // not the file whose name is no UTF-8 at all
        {"\xC9.ADI", "\xC3\xA9.adi"},
    };
    for (const auto& [name, found] : rows)
        EXPECT_EQ(resolveName(folder.string(), name), at(found)) << name;
    EXPECT_EQ(resolveName("/nowhere", upper(at("logs"))), at("Logs")) << "from the top";
    EXPECT_RUNTIME_ERROR(resolveName(folder.string(), "a.CBR\\NEW"), ErrorCode::pathFileAccess,
                         AllOf(HasSubstr(at("a.cbr")), HasSubstr(at("A.CBR"))));
}

TEST_F(Machine, ContentIsFoldersAndRegularFilesInOrderHiddenOnesOut) {
    make({"logs/", "Old/", ".git/", "link->logs", "broken->nowhere", "device->/dev/null", "b.CBR",
          "A.CBR", ".secret", "a.CBR", "linked.CBR->A.CBR"});
    const FolderContent content = contentOf(folder.string());
    EXPECT_THAT(content.folders, ElementsAre("link", "logs", "Old"));
    EXPECT_THAT(content.files, ElementsAre("A.CBR", "a.CBR", "b.CBR", "linked.CBR"));
    EXPECT_RUNTIME_ERROR(contentOf(at("gone")), ErrorCode::pathNotFound, HasSubstr("/gone"));
}

// --- The program's own folder --------------------------------------------------------------

struct ProgramFolder : Machine {
    ProgramFolder() {
        make({"bin/", "carried/", "share/applications/"});
        fs::permissions(folder.path(), fs::perms::all); // nobody makes his own folder in it
    }
    // Nothing is read-only to the system's administrator, so he becomes nobody meanwhile.
    std::string chosenWhenReadOnly() const {
        fs::permissions(at("bin"), fs::perms(0555));
        const std::shared_ptr<void> afterwards(
            nullptr, [this](void*) { fs::permissions(at("bin"), fs::perms(0755)); });
        const AsNobody operatorOnly;
        return chooseProgramFolder(at("bin"), own);
    }

    std::string own = at("home/share/Vantrel");
};

TEST_F(ProgramFolder, CarriedAlongKeepsTheFilesAndReadOnlyWithDataIsNoEmptyWorldElsewhere) {
    EXPECT_EQ(chooseProgramFolder(at("bin"), own), at("bin"));
    for (const char* data : {"bin/vantrel.cfg", "bin/mylog.cbr"}) {
        make({data});
        EXPECT_RUNTIME_ERROR(chosenWhenReadOnly(), ErrorCode::permissionDenied,
                             HasSubstr(at("bin")));
        fs::remove(at(data));
    }
    EXPECT_FALSE(folder.has("home"));
    EXPECT_EQ(chosenWhenReadOnly(), own);
    EXPECT_TRUE(fs::is_directory(own));
}

// The administrator may write among the system's programs. Files of his there would stop
// everybody else's start, and ones that lie there already must not.
TEST_F(ProgramFolder, InstalledForAllGivesEachUserHisOwnWhateverHeMayWrite) {
    make({"share/applications/org.vantrel.Vantrel.desktop"});
    EXPECT_EQ(chooseProgramFolder(at("carried"), own), at("carried"));
    make({"home"}); // a file in the way
    EXPECT_RUNTIME_ERROR(chooseProgramFolder(at("bin"), own), ErrorCode::pathFileAccess,
                         HasSubstr(own));
    fs::remove(at("home"));
    make({"bin/Vantrel.CFG"});
    EXPECT_EQ(chooseProgramFolder(at("bin"), own), own);
    if (mayGiveFilesAway()) // who made it for himself alone
        EXPECT_RUNTIME_ERROR(chosenWhenReadOnly(), ErrorCode::permissionDenied,
                             HasSubstr("sudo chown -R \"$USER\" '" + own + "'"));
    fs::permissions(own, fs::perms::all);
    EXPECT_EQ(chosenWhenReadOnly(), own);
    EXPECT_RUNTIME_ERROR(chooseProgramFolder(at("bin"), own + "\xEF\xBF\xBD"),
                         ErrorCode::pathFileAccess, HasSubstr("not UTF-8"));
}

// --- Serial ports ------------------------------------------------------------------------

struct SerialNames : Machine {
    // The device's name, behind its links.
    std::string shown(std::string_view port) const {
        return fs::path(deviceShownIn(roots, files, port)).filename();
    }

    SystemCalls calls;
    Files files{at("program"), calls};
    SerialRoots roots{at("by-id"), at("tty"), at("dev")};
};

TEST_F(SerialNames, AdaptersComeFirstAndOnceThenBuiltInPortsWithHardware) {
    make({"program/", "by-id/", "dev/", "dev/ttyACM0", "dev/ttyUSB0", "dev/ttyS0", "dev/ttyS1",
          "tty/ttyACM0/device/", "tty/ttyUSB0/device/", "tty/ttyS0/device/", "tty/ttyS1/device/",
          "by-id/usb-Z->../dev/ttyACM0", "by-id/usb-A->../dev/ttyUSB0", "tty/tty1/"});
    folder.write("tty/ttyS0/type", "0\n"); // a place kept free; the console tty1 has no device
    folder.write("tty/ttyS1/type", "4\n");
    std::string all;
    for (const char* port : {"com1", "com2", "com3", "com10", "None", "com0", "com11", "com1x"})
        all += shown(port) + '|';
    EXPECT_EQ(all, "ttyUSB0|ttyACM0|ttyS1|no such port|||||");
    EXPECT_EQ(identityIn(roots, files, "com1"), at("by-id/usb-A"));
    EXPECT_EQ(identityIn(roots, files, "com3"), at("dev/ttyS1"));
    // A link in the program's folder goes first.
    make({"program/COM1->../dev/ttyS1", "program/com2->../dev/gone", "program/com3->my",
          "program/my->../by-id/usb-Z"});
    EXPECT_EQ(shown("com1"), "ttyS1");
    EXPECT_EQ(identityIn(roots, files, "com3"), at("by-id/usb-Z"));
    EXPECT_EQ(shown("com2"), "no such port");
    make({"program/Com1"});
    EXPECT_RUNTIME_ERROR(shown("com1"), ErrorCode::pathFileAccess, HasSubstr("COM1"));
}

} // namespace
} // namespace vantrel::test
