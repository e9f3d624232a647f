#include "platform/linux/applications/DesktopEntries.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/linux/applications/LinuxRunningApplication.h"

namespace tovrel {
namespace {

namespace fs = std::filesystem;

TEST(DesktopEntryFile, ReadsItsGroupInTheUsersLanguage) {
    constexpr const char* text = "# a comment\n"
                                 "[Desktop Entry]\r\n"
                                 "Type=Application\n"
                                 "Name=Text Editor\n"
                                 "Name[de]=Texteditor\n"
                                 "Name[de_AT]=Textschreiber\n"
                                 "Name[sr@latin]=Uređivač\n"
                                 "no sense here\n"
                                 "= nor here\n"
                                 "Icon = some\\sicon\\\\\n"
                                 "NoDisplay=true\n"
                                 "NotShowIn=A\\;B;;C\\\\;D E\n"
                                 "Exec=env A=b \"/opt/my editor/edit\" --new %U\n"
                                 "[Desktop Action new]\n"
                                 "Name=New Window\n"
                                 "[Desktop Entry]\n"
                                 "Name=Too late\n";
    EXPECT_EQ(parseDesktopEntry(text, "de_AT.UTF-8")->name, Text("Textschreiber"));
    EXPECT_EQ(parseDesktopEntry(text, "de_DE.UTF-8@euro")->name, Text("Texteditor"));
    EXPECT_EQ(parseDesktopEntry(text, "sr_RS@latin")->name, Text("Uređivač"));
    EXPECT_EQ(parseDesktopEntry(text, "C.UTF-8")->name, Text("Text Editor"));
    const auto entry = parseDesktopEntry(text, "");
    EXPECT_EQ(entry->icon, "some icon\\");
    EXPECT_TRUE(entry->noDisplay);
    EXPECT_EQ(entry->notShowIn, (std::vector<std::string>{"A;B", "C\\", "D E"}));
    EXPECT_FALSE(entry->onlyShowIn);
    EXPECT_EQ(executableName(entry->exec), "edit");
    EXPECT_TRUE(hasOwnArguments(entry->exec));
    EXPECT_FALSE(hasOwnArguments("edit %F"));
    EXPECT_EQ(executableName(""), "");
    EXPECT_EQ(executableName("env A=b"), "");
}

TEST(DesktopEntryFile, RefusesWhatIsNoApplication) {
    EXPECT_FALSE(parseDesktopEntry("", ""));
    EXPECT_FALSE(parseDesktopEntry("[Desktop Entry]\nType=Link\nName=A page\n", ""));
    EXPECT_FALSE(parseDesktopEntry("[Desktop Entry]\nType=Application\n", ""));
    EXPECT_FALSE(parseDesktopEntry("Type=Application\nName=No group\n", ""));
    EXPECT_FALSE(parseDesktopEntry("[Desktop Entry]\nType=Application\nName[]=\nName[=x\n", "de"));
    EXPECT_TRUE(parseDesktopEntry("[Desktop Entry]\nHidden=true", "")->hidden);
}

class DesktopEntriesTest : public testing::Test {
  protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "tovrel-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
    }
    void TearDown() override { fs::remove_all(folder_); }

    void write(const std::string& path, const std::string& name, const std::string& lines = "") {
        fs::create_directories((folder_ / path).parent_path());
        std::ofstream(folder_ / path) << "[Desktop Entry]\nType=Application\nName=" << name << '\n' << lines;
    }

    DesktopEntries entries(const std::vector<std::string>& desktops = {}) {
        return {{folder_ / "own", folder_ / "system"}, "", {desktops, {folder_, folder_ / "bin"}}};
    }

    /// The names in the menus, each followed by a space.
    std::string menus(const std::vector<std::string>& desktops) {
        std::string names;
        for (const DesktopEntry& entry : entries(desktops).forMenus()) {
            names += entry.name.utf8() + " ";
        }
        return names;
    }

    static std::string name(const DesktopEntry* entry) {
        return entry == nullptr ? "none" : entry->name.utf8();
    }

    fs::path folder_;
};

TEST_F(DesktopEntriesTest, LooksUpByIdClassNameAndProgram) {
    write("system/applications/org.gnome.gedit.desktop", "gedit", "Exec=gedit %U\n");
    write("system/applications/kde/konsole.desktop", "Konsole");
    write("system/applications/writer.desktop", "Writer",
          "StartupWMClass=Office-Writer\nExec=office --writer %U\n");
    write("system/applications/office.desktop", "Office", "Exec=/usr/bin/office %U\n");
    write("system/applications/aaa.desktop", "Helper", "Exec=office\nNoDisplay=true\n");
    write("system/applications/vim.desktop", "Vim", "Exec=vim\nTerminal=true\n");
    write("system/applications/removed.desktop", "Removed", "Exec=removed\n");
    write("own/applications/removed.desktop", "Removed", "Hidden=true\n");
    write("own/applications/office.desktop", "My Office", "Exec=/usr/bin/office %U\n");
    fs::create_directories(folder_ / "system/applications/folder.desktop");
    std::ofstream(folder_ / "system/applications/binary.desktop") << std::string(1000, '\xff');

    DesktopEntries all = entries();
    EXPECT_EQ(name(all.withIdentifier("org.gnome.gedit")), "gedit");
    EXPECT_EQ(name(all.withIdentifier("kde-konsole")), "Konsole");
    EXPECT_EQ(name(all.withIdentifier("office")), "My Office");
    EXPECT_EQ(name(all.withIdentifier("removed")), "none");
    EXPECT_EQ(name(all.withIdentifier("folder")), "none");
    EXPECT_EQ(name(all.withIdentifier("binary")), "none");
    EXPECT_EQ(name(all.withStartupWMClass("office-writer")), "Writer");
    EXPECT_EQ(name(all.withStartupWMClass("")), "none");
    EXPECT_EQ(name(all.named("GEDIT")), "gedit");
    EXPECT_EQ(name(all.named("Office")), "My Office");
    EXPECT_EQ(name(all.named("edit")), "none");
    EXPECT_EQ(name(all.withExecutable("office")), "My Office");
    EXPECT_EQ(name(all.withExecutable("vim")), "none");
    EXPECT_EQ(name(all.withExecutable("removed")), "none");

    EXPECT_EQ(name(all.withIdentifier("fresh")), "none");
    write("own/applications/fresh.desktop", "Fresh");
    // The time of the last change has the granularity of the kernel's clock tick.
    fs::last_write_time(folder_ / "own/applications",
                        fs::file_time_type::clock::now() + std::chrono::hours(1));
    EXPECT_EQ(name(all.withIdentifier("fresh")), "Fresh");
}

TEST_F(DesktopEntriesTest, MenusShowWhatIsForTheirDesktopAndInstalled) {
    fs::create_directories(folder_ / "bin");
    std::ofstream(folder_ / "bin/data") << "no program";
    fs::create_directories(folder_ / "bin/folder");
    fs::create_symlink("/bin/sh", folder_ / "bin/shell");
    write("system/applications/a.desktop", "everywhere");
    write("system/applications/b.desktop", "only", "OnlyShowIn=KDE;XFCE;\n");
    write("system/applications/c.desktop", "not", "NotShowIn=KDE;XFCE\n");
    write("system/applications/d.desktop", "both", "OnlyShowIn=ubuntu;\nNotShowIn=GNOME;\n");
    write("system/applications/e.desktop", "nowhere", "OnlyShowIn=\n");
    write("system/applications/f.desktop", "found", "TryExec=shell\nExec=shell\n");
    write("system/applications/g.desktop", "absolute", "TryExec=/bin/sh\n");
    write("system/applications/h.desktop", "missing", "TryExec=no-such-program\n");
    write("system/applications/i.desktop", "unfit", "TryExec=data\n");
    write("system/applications/j.desktop", "unfit", "TryExec=folder\n");
    write("system/applications/k.desktop", "secret", "NoDisplay=true\n");
    write("system/applications/l.desktop", "deleted");
    write("own/applications/l.desktop", "deleted", "Hidden=true\n");

    EXPECT_EQ(menus({}), "everywhere not found absolute ");
    EXPECT_EQ(menus({"XFCE"}), "everywhere only found absolute ");
    EXPECT_EQ(menus({"ubuntu", "GNOME"}), "everywhere not both found absolute ");
    EXPECT_EQ(menus({"GNOME", "ubuntu"}), "everywhere not found absolute ");
    EXPECT_EQ(menus({"kde"}), "everywhere not found absolute ");

    // An application that no menu shows can still run, and then has its name.
    write("system/applications/aa.desktop", "elsewhere", "OnlyShowIn=KDE;\nExec=shell\n");
    DesktopEntries all = entries({"XFCE"});
    EXPECT_EQ(name(all.withIdentifier("h")), "missing");
    EXPECT_EQ(name(all.withIdentifier("aa")), "elsewhere");
    EXPECT_EQ(name(all.withIdentifier("k")), "secret");
    EXPECT_EQ(name(all.withIdentifier("l")), "none");
    EXPECT_EQ(name(all.withExecutable("shell")), "found");
}

TEST_F(DesktopEntriesTest, AnApplicationIsIdentifiedInTheStatedOrder) {
    write("system/applications/org.example.App.desktop", "By id");
    write("system/applications/declared.desktop", "By declaration", "StartupWMClass=TheClass\n");
    write("system/applications/theclass.desktop", "By class");
    const std::string program = fs::read_symlink("/proc/self/exe").filename().string();
    write("system/applications/program.desktop", "By program", "Icon=picture\nExec=" + program + "\n");
    DesktopEntries all = entries();
    const auto identified = [&](const std::optional<ApplicationWindow>& window) {
        return LinuxRunningApplication(getpid(), window, all);
    };

    ApplicationWindow window;
    window.instanceName = "theinstance";
    window.className = "TheClass";
    window.applicationIdentifier = "org.example.App";
    EXPECT_EQ(identified(window).bundleIdentifier(), Text("org.example.App"));
    window.applicationIdentifier = "org.example.NotInstalled";
    EXPECT_EQ(identified(window).bundleIdentifier(), Text("declared"));
    fs::remove(folder_ / "system/applications/declared.desktop");
    fs::last_write_time(folder_ / "system/applications",
                        fs::file_time_type::clock::now() + std::chrono::hours(1));
    EXPECT_EQ(identified(window).bundleIdentifier(), Text("theclass"));
    window.className = "Unknown";
    EXPECT_EQ(identified(window).bundleIdentifier(), Text("program"));
    EXPECT_EQ(identified(std::nullopt).localizedName(), Text("By program"));
    EXPECT_EQ(identified(window).icon(), ApplicationIcon{"picture"});
    EXPECT_FALSE(identified(window).isTerminated());

    const LinuxRunningApplication nobody(0x7FFFFFF0, window, all);
    EXPECT_EQ(nobody.bundleIdentifier(), std::nullopt);
    EXPECT_EQ(nobody.localizedName(), Text("Unknown"));
    EXPECT_TRUE(nobody.isTerminated());
}

} // namespace
} // namespace tovrel
