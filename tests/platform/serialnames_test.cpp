// SPDX-License-Identifier: MIT
// Which device a port stands for, on machines made of a few files; the settings text.
#include "platform/files.h"
#include "platform/serialnames.h"
#include "platform/serialport.h"
#include "platform/systemcalls.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <filesystem>

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

struct SerialNames : ::testing::Test {
    SerialNames() {
        for (const char* folder : {"program", "by-id", "tty", "dev"})
            fs::create_directory(machine.path() / folder);
    }

    // A device node as udev and the kernel list it.
    void plug(const std::string& tty, const std::string& byId = {}) {
        machine.write("dev/" + tty, "");
        fs::create_directories(machine.path() / "tty" / tty / "device");
        if (!byId.empty())
            fs::create_symlink("../dev/" + tty, machine.path() / "by-id" / byId);
    }

    // The device's name, behind its links.
    std::string shown(std::string_view port) const {
        const std::string root = machine.string() + '/';
        const std::string device =
            serialDeviceShown(files, port, {root + "by-id", root + "tty", root + "dev"});
        return device.starts_with(root + "dev/") ? device.substr(root.size() + 4) : device;
    }

    TempFolder machine;
    SystemCalls calls;
    Files files{(machine.path() / "program").string(), calls};
};

TEST_F(SerialNames, AdaptersComeFirstAndOnceThenBuiltInPortsWithHardware) {
    plug("ttyACM0", "usb-Z_radio-if00");
    plug("ttyUSB0", "usb-A_adapter-if00-port0");
    fs::create_directories(machine.path() / "tty/tty1"); // a console
    plug("ttyS0");
    machine.write("tty/ttyS0/type", "0\n"); // a place kept free
    plug("ttyS1");
    machine.write("tty/ttyS1/type", "4\n");
    EXPECT_EQ(shown("com1"), "ttyUSB0");
    EXPECT_EQ(shown("com2"), "ttyACM0");
    EXPECT_EQ(shown("com3"), "ttyS1");
    EXPECT_EQ(shown("com4"), "no such port");
    for (const char* none : {"None", "com0", "com11", "com1x", ""})
        EXPECT_EQ(shown(none), "") << none;
}

TEST_F(SerialNames, LinkInTheProgramFolderGoesFirstInAnyCase) {
    plug("ttyS0");
    plug("ttyS1");
    fs::create_symlink("../dev/ttyS1", machine.path() / "program/COM1");
    fs::create_symlink("../dev/gone", machine.path() / "program/com2");
    EXPECT_EQ(shown("com1"), "ttyS1");
    EXPECT_EQ(shown("com2"), "no such port");
    machine.write("program/Com1", "");
    EXPECT_RUNTIME_ERROR(shown("com1"), ErrorCode::pathFileAccess, HasSubstr("COM1"));
}

TEST(LineSettingsText, IsTakenApartOrRefused) {
    const LineSettings line = lineSettings("38400,e,7,2").value();
    EXPECT_EQ(std::tuple(line.baud, line.parity, line.dataBits, line.stopBits),
              std::tuple(38400, 'e', 7, 2));
    for (const char* bad : {"None,n,8,1", ",n,8,1", "9600,n,8", "9600,x,8,1", "9600,n,9,1",
                            "9600,n,8,3", "9600,n,8,1,", "9999999,n,8,1", ""})
        EXPECT_FALSE(lineSettings(bad)) << bad;
}

} // namespace
} // namespace vantrel::test
