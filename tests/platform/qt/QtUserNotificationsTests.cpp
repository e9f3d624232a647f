#include "platform/qt/QtUserNotifications.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QStringList>
#include <QTest>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovrel {
namespace {

using testing::ElementsAre;
using testing::Pair;

const QString name = QStringLiteral("org.freedesktop.Notifications");

/// A session bus of the test's own, which this process takes for its session's.
class PrivateSessionBus {
  public:
    PrivateSessionBus() {
        daemon_.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"});
        EXPECT_TRUE(daemon_.waitForReadyRead());
        address_ = daemon_.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address_.toUtf8());
    }
    ~PrivateSessionBus() {
        daemon_.terminate();
        daemon_.waitForFinished();
    }
    PrivateSessionBus(const PrivateSessionBus&) = delete;
    PrivateSessionBus& operator=(const PrivateSessionBus&) = delete;

    [[nodiscard]] const QString& address() const { return address_; }

  private:
    QProcess daemon_;
    QString address_;
};

class NotificationServer : public QDBusVirtualObject {
  public:
    NotificationServer(const QString& address, QStringList capabilities)
        : bus_(QDBusConnection::connectToBus(address, "server")), capabilities_(std::move(capabilities)) {
        bus_.registerVirtualObject("/org/freedesktop/Notifications", this);
        EXPECT_TRUE(bus_.registerService(name));
    }
    ~NotificationServer() override {
        bus_.unregisterService(name);
        QDBusConnection::disconnectFromBus("server");
    }
    NotificationServer(const NotificationServer&) = delete;
    NotificationServer& operator=(const NotificationServer&) = delete;

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        if (call.member() == "GetCapabilities") {
            return bus.send(call.createReply(capabilities_));
        }
        EXPECT_EQ(call.signature(), "susssasa{sv}i");
        shown.emplace_back(call.arguments().at(3).toString(), call.arguments().at(4).toString());
        return bus.send(call.createReply(1U));
    }
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    std::vector<std::pair<QString, QString>> shown;

  private:
    QDBusConnection bus_;
    QStringList capabilities_;
};

TEST(QtUserNotifications, NothingInThemIsReadAsMarkup) {
    const PrivateSessionBus bus;
    QtUserNotifications notifications;
    const auto shownBy = [&](const QStringList& capabilities) {
        NotificationServer server(bus.address(), capabilities);
        notifications.show("<i>A</i>", "<b>1 & 2</b>");
        notifications.show("B", "");
        EXPECT_TRUE(QTest::qWaitFor([&] { return server.shown.size() >= 2; }));
        return server.shown;
    };
    EXPECT_THAT(shownBy({"body", "body-markup"}),
                ElementsAre(Pair("<i>A</i>", "&lt;b&gt;1 &amp; 2&lt;/b&gt;"), Pair("B", "")));
    EXPECT_THAT(shownBy({"body"}), ElementsAre(Pair("<i>A</i>", "<b>1 & 2</b>"), Pair("B", "")));
}

} // namespace
} // namespace tovrel
