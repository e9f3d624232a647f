// Draws every state of the views, at three scales, over a light and over a dark desktop, into a folder for
// people to look at.
//
// usage: tovrel_view_pictures FOLDER

#include <QDir>
#include <QPainter>
#include <QPainterPath>
#include <QTest>
#include <QTimer>

#include "PaletteStage.h"
#include "RecordedCommands.h"
#include "commands/CommandSamples.h"
#include "menus/AccessibilityPermissionService.h"
#include "support/Fatal.h"
#include "views/PictureProgram.h"
#include "windows/QtUserInterface.h"

namespace tovrel {
namespace {

class Pictures {
  public:
    explicit Pictures(const QDir& folder) : folder_(folder) {}

    void drawAll() {
        drawEmptyStates();
        drawResults();
        drawRows();
        drawAlert();
    }

  private:
    void drawEmptyStates() {
        stage_.show({});
        save("empty");
        stage_.show(recordedCommands("mousepad", stage_.textServices), Text("Mousepad"));
        stage_.viewModel.setQuery("zzyzx");
        save("no-results");
        stage_.show({AccessibilityPermissionService::makeAccessibilityPermissionCommand()});
        save("permission");
    }

    void drawResults() {
        const std::vector<Command> commands = recordedCommands("mousepad", stage_.textServices);
        stage_.show(commands, Text("Mousepad"), ApplicationIcon{iconFile()});
        save("results");
        stage_.viewModel.setQuery("sav");
        save("typed");
        stage_.viewModel.setQuery("e");
        stage_.viewModel.moveSelection(3);
        save("selected");
        stage_.viewModel.moveSelection(9);
        save("scrolled");
        stage_.show(recordedCommands("firefox", stage_.textServices), Text("Firefox"),
                    ApplicationIcon{"firefox"});
        save("firefox");
    }

    void drawRows() {
        using samples::menuCommand;
        std::vector<Command> commands{
            menuCommand({"File", "Export",
                         "A title that is so long that it does not fit beside the keys of its "
                         "shortcut, and goes on and on"},
                        "⌘⇧⌥⌃F10"),
            menuCommand({"View", "Some menu with a very long name", "Another menu with a very long name",
                         "Yet another menu with a name that is long", "Toolbar"},
                        "⌘⇟"),
            menuCommand({"View", "Status Bar"}, "F11"),
            menuCommand({"Édition", "Größe ändern…"}, "⌘⌥↑"),
            menuCommand({"ファイル", "名前を付けて保存"}, "⌘S"),
            menuCommand({"Файл", "Сохранить как…"}, "⌘⇧Ы"),
            samples::shellCommand("Back up my documents", "true"),
        };
        commands[1].isChecked = true;
        commands[2].isChecked = true;
        stage_.show(commands, Text("An application with quite a long name"));
        save("long");
        stage_.viewModel.moveSelection(1);
        save("checked-selected");
        stage_.viewModel.setQuery("a query that is so long that it does not fit the field");
        save("long-query");
    }

    void drawAlert() {
        QtUserInterface userInterface(stage_.engine, *stage_.windowSystem);
        QTimer::singleShot(0, [this] {
            for (QWindow* window : QGuiApplication::topLevelWindows()) {
                auto* view = qobject_cast<QQuickView*>(window);
                if (view != nullptr && view != &stage_.panel.window()) {
                    if (!QTest::qWaitForWindowActive(view)) {
                        fatal("the alert never became active");
                    }
                    save("alert", *view);
                    view->close();
                }
            }
        });
        static_cast<void>(
            userInterface.runAlert({.messageText = "Run “Back up my documents”?",
                                    .informativeText = "This shell command can run actions on your Mac.",
                                    .firstButton = "Run",
                                    .secondButton = "Cancel"}));
    }

    void save(const QString& name) { save(name, stage_.panel.window()); }

    void save(const QString& name, QQuickView& view) {
        QCoreApplication::processEvents();
        const QImage window = view.grabWindow();
        const qreal scale = view.effectiveDevicePixelRatio();
        const struct {
            QString name;
            QColor colour;
        } desktops[] = {{"light", Qt::white}, {"dark", QColor(0x24, 0x27, 0x2b)}};
        for (const auto& desktop : desktops) {
            const int margin = qRound(32 * scale);
            QImage picture(window.width() + 2 * margin, window.height() + 2 * margin, QImage::Format_RGB32);
            picture.fill(desktop.colour);
            QPainter painter(&picture);
            // The area outside the round corners is transparent on a desktop, but not in a grabbed picture.
            QPainterPath outline;
            outline.addRoundedRect(QRectF(QPointF(margin, margin), window.size()), 24 * scale, 24 * scale);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setClipPath(outline);
            painter.drawImage(QRect(QPoint(margin, margin), window.size()), window);
            painter.end();
            picture.save(folder_.filePath(QStringLiteral("%1-%2@%3.png").arg(name, desktop.name).arg(scale)));
        }
    }

    /// Makes an application's icon.
    Text iconFile() {
        const QString file = folder_.absoluteFilePath(QStringLiteral("icon.png"));
        QImage icon(128, 128, QImage::Format_ARGB32_Premultiplied);
        icon.fill(Qt::transparent);
        QPainter painter(&icon);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x3a, 0x86, 0xff));
        painter.drawRoundedRect(QRectF(8, 8, 112, 112), 28, 28);
        painter.setBrush(Qt::white);
        for (const int y : {40, 60, 80}) {
            painter.drawRoundedRect(QRectF(34, y, 60, 8), 4, 4);
        }
        painter.end();
        icon.save(file);
        return Text(file.toStdString());
    }

    QDir folder_;
    PaletteStage stage_;
};

} // namespace
} // namespace tovrel

int main(int argc, char** argv) {
    return tovrel::runPictureProgram(argc, argv,
                                     [](const QDir& folder) { tovrel::Pictures(folder).drawAll(); });
}
