#pragma once
#include <QMessageBox>
#include <QPushButton>
#include <QApplication>
#include <QSystemTrayIcon>
#include <QScreen>

#include "platform/UserInterface.h"
#include "platform/qt/ScreenCoordinates.h"
#include "platform/qt/ViewEngine.h"
#include "platform/qt/WindowSystem.h"
namespace tovrel {
class QtUserInterface : public UserInterface {
  public:
    QtUserInterface(ViewEngine&, WindowSystem windowSystem) : windowSystem_(std::move(windowSystem)) {}
    void activate() override {}
    Subscription onResignActive(std::function<void()> observer) override { return resign_.subscribe(std::move(observer)); }
    std::optional<Rect> mainScreenVisibleFrame() override {
        const auto* primary = QApplication::primaryScreen();
        if (primary == nullptr) return std::nullopt;
        return upwards(primary->availableGeometry(), *primary);
    }
    bool runAlert(const Alert& alert) override {
        QMessageBox box(QMessageBox::Warning, "Tovrel", QString::fromStdString(alert.messageText.utf8()));
        box.setInformativeText(QString::fromStdString(alert.informativeText.utf8()));
        auto* first = box.addButton(QString::fromStdString(alert.firstButton.utf8()), QMessageBox::AcceptRole);
        box.addButton(QString::fromStdString(alert.secondButton.utf8()), QMessageBox::RejectRole);
        box.exec();
        return box.clickedButton()->text() == first->text();
    }
    std::unique_ptr<StatusItem> makeStatusItem(StatusItemDescription) override { return nullptr; }
    Subscription onMenuTracking(std::function<void(bool)> observer) override { return menu_.subscribe(std::move(observer)); }
    void terminate() override { QApplication::quit(); }
  private:
    WindowSystem windowSystem_;
    ObserverList<> resign_;
    ObserverList<bool> menu_;
};
}
