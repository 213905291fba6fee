// SPDX-License-Identifier: MIT
// What is so on Windows alone: names that are no files', drives, and the calls a serial port gets.
#include "fakes/radios.h"
#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/windows/comport.h"
#include "platform/windows/win32.h"
#include "rig/catlink.h"
#include "support/testing.h"

#include <thread>

namespace vantrel::test {
namespace {

struct Windows : ::testing::Test {
    TempFolder folder;
    SystemCalls calls;
    Files files{folder.string(), calls};
};

TEST_F(Windows, NamesAreSpelledAsOnTheDiskAndBeginWithADriveOrAShare) {
    std::filesystem::create_directory(folder.path() / "Logs");
    folder.write("Logs/a.cbr", "");
    const std::string drive = folder.string().substr(0, 3); // "C:\"
    const std::pair<std::string, std::string> rows[] = {
        {"logs/A.CBR", folder.string() + "\\Logs\\a.cbr"},
        {folder.string() + "\\LOGS//A.CBR", folder.string() + "\\Logs\\a.cbr"},
        {"\\New.cbr", drive + "New.cbr"},
        {drive + "no\\New.cbr", drive + "no\\New.cbr"},
        {"\\\\HOST\\logs\\New.cbr", "\\\\HOST\\logs\\New.cbr"}};
    for (const auto& [name, path] : rows)
        EXPECT_EQ(files.nativePath(name), path) << name;
    EXPECT_THAT(drives(), ::testing::Contains("C:\\"));
}

TEST_F(Windows, DevicesAndStreamsAreRefusedInWords) {
    for (const char* device : {"NUL", "con.cbr", "Com1.CBR", "LPT9 .TXT", "com\xB2", "LOGS\\AUX"})
        EXPECT_RUNTIME_ERROR(files.rewrite(device, "x"), ErrorCode::pathFileAccess,
                             HasSubstr("device"));
    for (const char* name : {"SKS.CBR:hidden", "C:SKS.CBR", "SKS?.CBR", "A\tB"})
        EXPECT_RUNTIME_ERROR(files.appendLine(name, "x"), ErrorCode::pathFileAccess,
                             HasSubstr("cannot hold"));
    files.rewrite("COM0X.CBR", "a log");
    files.rewrite("\xC9.CBR", "another");
    EXPECT_THAT(folder.names(), ElementsAre("COM0X.CBR", "\xC3\x89.CBR"));
    EXPECT_TRUE(std::filesystem::exists(folder.path() / L"\u00C9.CBR"));
}

TEST_F(Windows, FileHeldForAMomentIsWaitedForAndOneHeldOnIsTold) {
    files.rewrite("A.CBR", "old");
    const auto hold = [this] {
        return ::CreateFileW((folder.path() / "A.CBR").c_str(), GENERIC_READ, FILE_SHARE_READ,
                             nullptr, OPEN_EXISTING, 0, nullptr);
    };
    HANDLE scanner = hold();
    std::thread soon([&] {
        ::Sleep(200);
        ::CloseHandle(scanner);
    });
    files.rewrite("A.CBR", "new");
    soon.join();
    EXPECT_EQ(folder.read("A.CBR"), "new");
    scanner = hold();
    EXPECT_RUNTIME_ERROR(files.appendLine("A.CBR", "x"), ErrorCode::pathFileAccess,
                         HasSubstr("another program has it open"));
    ::CloseHandle(scanner);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"A.CBR"});
}

// A radio at the end of the calls; what is done with the port is written down.
struct RecordedCalls : PortCalls {
    RecordedCalls(const Radio& ofRadio, std::string& ofLog) : radio(ofRadio), log(ofLog) {}
    HANDLE open(const wchar_t* path) override {
        log += narrowText(path);
        return this;
    }
    BOOL setLine(HANDLE, DCB& line) override {
        log += " " + std::to_string(line.BaudRate) + (line.fDtrControl == 0 ? " -DTR" : " +DTR") +
               (line.fRtsControl == RTS_CONTROL_ENABLE ? " +RTS" : " -RTS");
        EXPECT_EQ(line.ByteSize, 8);
        EXPECT_EQ(line.StopBits == TWOSTOPBITS, radio.lineSettings.ends_with("8,2"));
        EXPECT_EQ(line.fOutxCtsFlow | line.fOutxDsrFlow | line.fOutX | line.fInX, 0u);
        return 1;
    }
    BOOL setTimeouts(HANDLE, COMMTIMEOUTS& timeouts) override {
        return timeouts.ReadIntervalTimeout == MAXDWORD;
    }
    BOOL escape(HANDLE, DWORD function) override {
        log += function == CLRRTS ? " -RTS" : " other";
        return 1;
    }
    BOOL purge(HANDLE, DWORD) override {
        log += " purge";
        return 1;
    }
    BOOL write(HANDLE, const char* bytes, DWORD count, DWORD& written) override {
        log += " ask";
        EXPECT_EQ(std::string(bytes, count), radio.query);
        reply = radio.reply(14'025'000);
        written = count;
        return 1;
    }
    BOOL read(HANDLE, char* bytes, DWORD, DWORD& taken) override { // a byte at a time
        taken = reply.empty() ? 0 : 1;
        reply.copy(bytes, taken);
        reply.erase(0, taken);
        return 1;
    }
    BOOL close(HANDLE) override {
        log += " close";
        return 1;
    }

    const Radio& radio;
    std::string& log;
    std::string reply;
};

TEST_F(Windows, KeyingLinesAreSetFirstOfAllForEachFamilyOfRadios) {
    for (const Radio& radio : radios()) {
        SCOPED_TRACE(radio.name);
        std::string log;
        ComPort port(files, std::make_unique<RecordedCalls>(radio, log), [](int) { return true; });
        EXPECT_EQ(readFrequency(settingsFor(radio), port).frequency, "14.025");
        const bool rts = radio.name.starts_with("Kenwood") || radio.name.starts_with("Yaesu");
        const std::string baud = radio.lineSettings.substr(0, radio.lineSettings.find(','));
        EXPECT_EQ(log, "\\\\.\\COM1 " + baud + (rts ? " -DTR +RTS" : " -DTR -RTS") + " purge ask" +
                           (rts ? " -RTS close" : " close"));
    }
}

} // namespace
} // namespace vantrel::test
