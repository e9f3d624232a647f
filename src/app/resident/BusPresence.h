#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <chrono>

namespace tovrel {

/// Offers an object on the session bus under the program's name, and offers it again after the bus has gone
/// and come back at its address. The connection that Qt shares stays lost then, so this class makes a new one
/// each time.
class BusPresence : public QObject {
    Q_OBJECT

  public:
    enum class Outcome {
        hasName,
        waitsForName, ///< Another process has the name; this one gets it when that process ends.
        noBus,
    };

    /// `object` outlives it.
    explicit BusPresence(QObject& object) : object_(&object) {}
    ~BusPresence() override;
    BusPresence(const BusPresence&) = delete;
    BusPresence& operator=(const BusPresence&) = delete;

    /// The connection's name (see QDBusConnection), for other code that uses the bus.
    [[nodiscard]] static QString connectionName();

    /// Offers the object and then asks for the name. Waits up to 5 s for a bus that does not answer.
    [[nodiscard]] Outcome appear();

  private Q_SLOTS:
    void connectionLost();

  private:
    Outcome appear(std::chrono::milliseconds patience);
    static void disappear();
    void tryAgain();

    QObject* object_;
    QTimer retry_;
};

} // namespace tovrel
