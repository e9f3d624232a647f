// Draws every page of the settings in every state, at three scales, into a folder for people to look at.
//
// usage: tovrel_settings_pictures FOLDER

#include <QDir>
#include <QTest>
#include <QTranslator>

#include "SettingsStage.h"
#include "views/PictureProgram.h"
#include "views/settings/SettingsPages.h"

namespace tovrel {
namespace {

/// Makes every text half as long again, as it may be in another language.
class LongTexts : public QTranslator {
  public:
    [[nodiscard]] QString translate(const char* /*context*/, const char* text, const char* /*what*/,
                                    int /*count*/) const override {
        const QString original = QString::fromUtf8(text);
        return original + QStringLiteral(" mnopqr").repeated(4).left(original.size() / 2);
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};

class Pictures {
  public:
    explicit Pictures(const QDir& folder) : folder_(folder) {}

    void drawAll() {
        drawEmptyPages();
        fill();
        drawFilledPages("filled");
        drawDialogs("");
        drawRecording();
        drawNotices();
        LongTexts longTexts;
        QCoreApplication::installTranslator(&longTexts);
        drawFilledPages("long");
        drawDialogs("long-");
    }

  private:
    void drawNotices() {
        stage_.stored.refusesWrites = true;
        for (const PreferencesObstacle obstacle :
             {PreferencesObstacle::locked, PreferencesObstacle::laterVersion, PreferencesObstacle::other}) {
            stage_.stored.failure = {obstacle, "Input/output error"};
            stage_.show(SettingsTab::appRules);
            stage_.model().setDefaultBehavior(AppBehaviorRule::automatic);
            save(QStringLiteral("notice-%1").arg(static_cast<int>(obstacle)));
        }
        stage_.stored.refusesWrites = false;
        stage_.model().setShowCheckedStatus(true);
    }

    void drawEmptyPages() {
        stage_.isTrusted = false;
        for (std::size_t i = 0; i < settingsPages().size(); ++i) {
            stage_.show(settingsPages()[i].tab);
            save(QStringLiteral("empty-%1").arg(i));
        }
        stage_.isTrusted = true;
    }

    void fill() {
        stage_.application = CurrentApplicationContext{"FeatherPad", "featherpad"};
        std::vector<Text> commands;
        commands.reserve(600);
        for (int i = 0; i < 600; ++i) {
            commands.emplace_back("Command " + std::to_string(i));
        }
        commands[2] = "A command with a very long name that nobody can read in one glance";
        stage_.menuItems = {menuOf("File", {"New", "Open…", "Save", "Save As…", "Print…", "Quit"}),
                            menuOf("Edit", commands)};
        for (const char* name : {"FeatherPad", "Mousepad", "Files", "Terminal", "Writer", "Calc", "Web",
                                 "Mail", "Calendar", "Image Viewer", "Music", "Software"}) {
            const std::string id = "org.example." + std::string(name);
            stage_.workspace.install({.bundleIdentifier = id, .name = name, .icon = {}});
        }
        for (const char* id : {"org.example.Mousepad", "org.example.Terminal", "org.example.Image Viewer",
                               "com.example.an-application-with-a-long-identifier"}) {
            stage_.rules.setBehavior(AppBehaviorRule::disabled, id);
        }
        stage_.rules.addMenuBlacklistRule({}, {"Help", "About"}, MenuBlacklistMode::excludeSelf);
        for (int i = 0; i < 12; ++i) {
            stage_.rules.addMenuBlacklistRule(Text("featherpad"), {"Edit", commands[std::size_t(i)]},
                                              MenuBlacklistMode::excludeSelfAndChildren);
        }
        const struct {
            const char* title = nullptr;
            CustomCommandKind kind = CustomCommandKind::open;
            std::optional<Text> scope;
        } custom[] = {{"Back up my documents", CustomCommandKind::shellScript, std::nullopt},
                      {"Toggle Do Not Disturb", CustomCommandKind::shortcut, std::nullopt},
                      {"Open the project folder", CustomCommandKind::open, Text("featherpad")},
                      {"Tidy up the desktop", CustomCommandKind::appleScript, std::nullopt}};
        for (const auto& command : custom) {
            stage_.customCommands.saveCustomCommand({.id = Text(command.title),
                                                     .title = command.title,
                                                     .kind = command.kind,
                                                     .payload = "~/bin/run",
                                                     .appScope = command.scope,
                                                     .aliases = {"one", "two"}});
        }
        for (int i = 0; i < 30; ++i) {
            const Text id = "menu:featherpad:Edit/Command " + std::to_string(i);
            for (int use = 0; use <= i % 3; ++use) {
                stage_.history.recordUse(id, PointInTime{.secondsSinceReferenceDate = 8.1e8 - 86400.0 * i});
            }
            if (i % 4 == 0) {
                stage_.history.setFavorite(true, id);
            }
        }
        stage_.history.recordUse("custom:Back up my documents",
                                 PointInTime{.secondsSinceReferenceDate = 8.2e8});
    }

    void drawFilledPages(const char* name) {
        for (std::size_t i = 0; i < settingsPages().size(); ++i) {
            const SettingsTab tab = settingsPages()[i].tab;
            stage_.show(tab);
            switch (tab) {
            case SettingsTab::menuRules:
                stage_.state().selectedMenuCandidateID.set(stage_.model().menuRuleCandidates().get()[9].id);
                break;
            case SettingsTab::commands:
                stage_.state().editCustomCommand("Open the project folder");
                break;
            case SettingsTab::search:
                stage_.state().selectMenuCommandSetting(stage_.model().menuCommandSettings().get()[3].id);
                break;
            default:
                break;
            }
            save(QStringLiteral("%1-%2").arg(QLatin1String(name)).arg(i));
            if (scrollToEnd()) {
                save(QStringLiteral("%1-%2-end").arg(QLatin1String(name)).arg(i));
            }
        }
    }

    bool scrollToEnd() {
        QQuickItem* page = stage_.find(QStringLiteral("page"));
        const double last = page->property("contentHeight").toDouble() - page->height();
        page->setProperty("contentY", last);
        return last > 0;
    }

    void drawDialogs(const QString& prefix) {
        stage_.show(SettingsTab::appRules);
        scrollToEnd();
        stage_.click(stage_.find(QStringLiteral("chooseApplication")));
        stage_.press(Qt::Key_Down);
        save(prefix + "choose-application");
        stage_.type(QStringLiteral("zzz"));
        save(prefix + "choose-application-none");
        stage_.show(SettingsTab::menuRules);
        stage_.click(stage_.find(QStringLiteral("candidate")));
        save(prefix + "picker");
        stage_.type(QStringLiteral("command 1"));
        stage_.press(Qt::Key_Down);
        save(prefix + "picker-filtered");
        stage_.show(SettingsTab::menuRules);
        stage_.click(stage_.find(QStringLiteral("mode")));
        save(prefix + "picker-modes");
        stage_.show(SettingsTab::commands);
        for (int i = 0; i < 8; ++i) {
            stage_.press(Qt::Key_Tab);
        }
        save(prefix + "keyboard-focus");
        stage_.show(SettingsTab::general);
        stage_.press(Qt::Key_Tab);
        save(prefix + "keyboard-focus-sidebar");
    }

    void drawRecording() {
        stage_.show(SettingsTab::general);
        stage_.click(stage_.find(QStringLiteral("recorder")));
        save("recording");
        stage_.shortcuts.setShortcut(std::nullopt, stage_.togglePalette);
        save("recording-empty");
        stage_.press(Qt::Key_Escape);
        save("no-shortcut");
        stage_.shortcuts.setShortcut(Shortcut{35, 768}, stage_.togglePalette);
    }

    void save(const QString& name) {
        QCoreApplication::processEvents();
        QQuickView& view = stage_.window.window();
        const qreal scale = view.effectiveDevicePixelRatio();
        view.grabWindow().save(folder_.filePath(QStringLiteral("%1@%2.png").arg(name).arg(scale)));
    }

    QDir folder_;
    SettingsStage stage_;
};

} // namespace
} // namespace tovrel

int main(int argc, char** argv) {
    return tovrel::runPictureProgram(argc, argv,
                                     [](const QDir& folder) { tovrel::Pictures(folder).drawAll(); });
}
