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

    std::string deviceOf(std::string_view port) const {
        const std::string device = serialDevice(program(), port, roots());
        return device.empty() ? device : fs::path(device).filename().string();
    }

    std::string program() const { return (machine.path() / "program").string(); }
    SerialRoots roots() const {
        const std::string root = machine.string() + '/';
        return {root + "by-id", root + "tty", root + "dev"};
    }

    TempFolder machine;
    SystemCalls calls;
};

TEST_F(SerialNames, AdaptersComeFirstAndOnceThenBuiltInPorts) {
    plug("ttyUSB0", "usb-Z_adapter-if00-port0");
    plug("ttyACM0", "usb-A_radio-if00");
    plug("ttyS0");
    EXPECT_EQ(deviceOf("com1"), "usb-A_radio-if00");
    EXPECT_EQ(deviceOf("com2"), "usb-Z_adapter-if00-port0");
    EXPECT_EQ(deviceOf("com3"), "ttyS0");
    EXPECT_EQ(deviceOf("com4"), "");
}

TEST_F(SerialNames, OnlyPortsWithHardwareAreCounted) {
    fs::create_directories(machine.path() / "tty/tty1"); // a console
    plug("ttyS0");
    machine.write("tty/ttyS0/type", "0\n"); // a place kept free
    plug("ttyS1");
    machine.write("tty/ttyS1/type", "4\n");
    EXPECT_EQ(deviceOf("com1"), "ttyS1");
    EXPECT_EQ(deviceOf("com2"), "");
}

TEST_F(SerialNames, LinkInTheProgramFolderGoesFirstInAnyCase) {
    plug("ttyS0");
    fs::create_symlink("../dev/ttyS0", machine.path() / "program/COM7");
    EXPECT_EQ(deviceOf("com7"), "COM7");
    EXPECT_EQ(deviceOf("com1"), "ttyS0");

    machine.write("program/Com7", "");
    EXPECT_RUNTIME_ERROR(deviceOf("com7"), ErrorCode::pathFileAccess, HasSubstr("COM7"));
}

TEST_F(SerialNames, StartPageShowsTheDeviceBehindTheLinks) {
    const Files files(program(), calls);
    plug("ttyUSB3", "usb-A_radio-if00");
    fs::create_symlink("../dev/gone", machine.path() / "program/com2");
    EXPECT_EQ(serialDeviceShown(files, "com1", roots()), machine.string() + "/dev/ttyUSB3");
    EXPECT_EQ(serialDeviceShown(files, "com2", roots()), "no such port");
    EXPECT_EQ(serialDeviceShown(files, "com3", roots()), "no such port");
    for (const char* none : {"None", "com0", "com11", "com1x", ""})
        EXPECT_EQ(serialDeviceShown(files, none, roots()), "") << none;
}

TEST(LineSettingsText, IsTakenApartOrRefused) {
    const std::optional<LineSettings> line = lineSettings("38400,n,8,2");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->baud, 38400);
    EXPECT_EQ(line->parity, 'n');
    EXPECT_EQ(line->dataBits, 8);
    EXPECT_EQ(line->stopBits, 2);
    for (const char* bad : {"None,n,8,1", ",n,8,1", "9600,n,8", "9600,x,8,1", "9600,n,9,1",
                            "9600,n,8,3", "9600,n,8,1,", "9999999,n,8,1", ""})
        EXPECT_FALSE(lineSettings(bad)) << bad;
}

} // namespace
} // namespace vantrel::test
