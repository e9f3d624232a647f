#include "fuzz/FuzzedPeer.h"

#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <unistd.h>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>

#include "fuzz/Fuzzing.h"
#include "support/Text.h"

namespace tovrel::fuzzing {
namespace {

/// Hands out the bytes of the input one after the other, and zeros after its end.
class Input {
  public:
    explicit Input(std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {}

    [[nodiscard]] bool isAtEnd() const { return position_ >= bytes_.size(); }
    std::uint8_t byte() { return isAtEnd() ? std::uint8_t{0} : bytes_[position_++]; }

    std::uint64_t number() {
        const std::uint8_t first = byte();
        if (first < 0xF0) { // small numbers produce trees
            return first % 16;
        }
        std::uint64_t value = 0;
        for (int i = 0; i < 8; ++i) {
            value = value << 8U | byte();
        }
        return value;
    }

    /// A word that the readers know, or bytes of the input up to a line break.
    std::string text() {
        static constexpr std::array words{"label",
                                          "action",
                                          "target",
                                          "accel",
                                          ":section",
                                          ":submenu",
                                          "enabled",
                                          "visible",
                                          "type",
                                          "separator",
                                          "children-display",
                                          "submenu",
                                          "toggle-state",
                                          "shortcut",
                                          "hidden-when",
                                          "action-missing",
                                          "action-disabled",
                                          "action-namespace",
                                          "submenu-action",
                                          "app.save",
                                          "win.x",
                                          "_File",
                                          "Save\tCtrl+S",
                                          "<Primary>s",
                                          "Control",
                                          "s",
                                          "GTK",
                                          "Qt",
                                          "Gecko",
                                          "org.a11y.atspi.Component",
                                          "",
                                          "icon"};
        const std::size_t first = byte() % 64; // letters then name words, and inputs can be written by hand
        if (first < words.size()) {
            return words.at(first);
        }
        std::string made;
        while (!isAtEnd() && made.size() < 64) {
            const std::uint8_t next = byte();
            if (next == '\n') {
                break;
            }
            made += static_cast<char>(next);
        }
        return made;
    }

  private:
    std::vector<std::uint8_t> bytes_;
    std::size_t position_ = 0;
};

constexpr int deepest = 24;

/// The length of the complete type at the start of a signature.
std::size_t typeLength(std::string_view signature) {
    if (signature.front() == 'a') {
        return 1 + typeLength(signature.substr(1));
    }
    if (signature.front() != '(' && signature.front() != '{') {
        return 1;
    }
    std::size_t length = 1;
    while (signature[length] != ')' && signature[length] != '}') {
        length += typeLength(signature.substr(length));
    }
    return length + 1;
}

bool append(sd_bus_message* message, std::string_view signature, Input& input, int depth);

bool appendInside(sd_bus_message* message, char type, const std::string& contents, Input& input, int depth) {
    if (sd_bus_message_open_container(message, type, contents.c_str()) < 0) {
        return false;
    }
    // The input decides how long an array is.
    const std::size_t count = type == SD_BUS_TYPE_ARRAY ? input.byte() % 8 : 1;
    for (std::size_t i = 0; i < count && depth < deepest; ++i) {
        if (!append(message, contents, input, depth + 1)) {
            return false;
        }
    }
    return sd_bus_message_close_container(message) >= 0;
}

bool appendVariant(sd_bus_message* message, Input& input, int depth) {
    static constexpr std::array types{"s",  "b",          "i", "(uu)", "aas",   "u", "d",      "v", "ay",
                                      "as", "(ia{sv}av)", "x", "o",    "a{sv}", "g", "(s(b))", "y", "a{ii}"};
    const std::string type = depth + 4 >= deepest ? "s" : types.at(input.byte() % types.size());
    return appendInside(message, SD_BUS_TYPE_VARIANT, type, input, depth);
}

/// Appends the text, or an empty one if sd-bus refuses it on both ends, as it does U+FFFF.
bool appendString(sd_bus_message* message, const std::string& text) {
    return sd_bus_message_append_basic(message, SD_BUS_TYPE_STRING, text.c_str()) >= 0 ||
           sd_bus_message_append_basic(message, SD_BUS_TYPE_STRING, "") >= 0;
}

bool appendBasic(sd_bus_message* message, char type, Input& input) {
    const std::uint64_t number = type == 's' || type == 'o' || type == 'g' ? 0 : input.number();
    const int truth = static_cast<int>(number & 1U);
    const auto real = static_cast<double>(number);
    switch (type) {
    case 's':
        return appendString(message, Text(input.text()).utf8());
    case 'o':
        return sd_bus_message_append_basic(message, type, ("/a/" + std::to_string(input.number())).c_str()) >=
               0;
    case 'g':
        return sd_bus_message_append_basic(message, type, input.byte() % 2 == 0 ? "s" : "") >= 0;
    case 'b':
        return sd_bus_message_append_basic(message, type, &truth) >= 0;
    case 'd':
        return sd_bus_message_append_basic(message, type, &real) >= 0;
    default: // the lowest bytes count on this machine's byte order
        return sd_bus_message_append_basic(message, type, &number) >= 0;
    }
}

/// Appends a value of every type in the signature.
bool append(sd_bus_message* message, std::string_view signature, Input& input, int depth) {
    while (!signature.empty()) {
        const std::size_t length = typeLength(signature);
        const std::string type(signature.substr(0, length));
        bool isAppended = false;
        if (type.front() == 'v') {
            isAppended = appendVariant(message, input, depth);
        } else if (type.front() == 'a') {
            isAppended = appendInside(message, SD_BUS_TYPE_ARRAY, type.substr(1), input, depth);
        } else if (type.front() == '(' || type.front() == '{') {
            isAppended =
                appendInside(message, type.front() == '(' ? SD_BUS_TYPE_STRUCT : SD_BUS_TYPE_DICT_ENTRY,
                             type.substr(1, length - 2), input, depth);
        } else {
            isAppended = appendBasic(message, type.front(), input);
        }
        if (!isAppended) {
            return false;
        }
        signature.remove_prefix(length);
    }
    return true;
}

struct CallAnswer {
    std::string_view member;
    const char* signature;
};

const char* signatureFor(std::string_view member, Input& input) {
    static constexpr std::array answers{CallAnswer{"Start", "a(uuaa{sv})"},
                                        CallAnswer{"DescribeAll", "a{s(bgav)}"},
                                        CallAnswer{"GetLayout", "u(ia{sv}av)"},
                                        CallAnswer{"AboutToShow", "b"},
                                        CallAnswer{"GetChildren", "a(so)"},
                                        CallAnswer{"GetState", "au"},
                                        CallAnswer{"GetRole", "u"},
                                        CallAnswer{"Get", "v"},
                                        CallAnswer{"GetKeyBinding", "s"},
                                        CallAnswer{"GetInterfaces", "as"}};
    const std::uint8_t choice = input.byte();
    if (choice >= 0xF8) { // the answer to another call, which makes no sense here
        return answers.at(choice % answers.size()).signature;
    }
    for (const CallAnswer& answer : answers) {
        if (answer.member == member) {
            return answer.signature;
        }
    }
    return "";
}

/// Appends children that are the application's own, because the readers leave out all others.
bool appendChildren(sd_bus_message* message, Input& input) {
    if (sd_bus_message_open_container(message, SD_BUS_TYPE_ARRAY, "(so)") < 0) {
        return false;
    }
    for (std::uint8_t count = input.byte() % 6; count > 0; --count) {
        const std::string path = "/a/" + std::to_string(input.byte());
        if (sd_bus_message_append(message, "(so)", FuzzedPeer::busName, path.c_str()) < 0) {
            return false;
        }
    }
    return sd_bus_message_close_container(message) >= 0;
}

using Message = std::unique_ptr<sd_bus_message, decltype(&sd_bus_message_unref)>;

Message answerTo(sd_bus_message* call, Input& input) {
    sd_bus_message* raw = nullptr;
    const char* const name = sd_bus_message_get_member(call);
    const std::string_view member = name == nullptr ? "" : name;
    if (member == "Hello") {
        sd_bus_message_new_method_return(call, &raw);
        sd_bus_message_append(raw, "s", ":1.8");
    } else if (input.byte() == 0xFF) {
        sd_bus_message_new_method_errorf(call, &raw, "org.freedesktop.DBus.Error.Failed", "no");
    } else {
        sd_bus_message_new_method_return(call, &raw);
        const char* const signature = signatureFor(member, input);
        const bool isMade = std::string_view(signature) == "a(so)" ? appendChildren(raw, input)
                                                                   : append(raw, signature, input, 0);
        require(isMade, "the peer's own message is well formed");
    }
    sd_bus_message_set_sender(raw, member == "Hello" ? "org.freedesktop.DBus" : FuzzedPeer::busName);
    return {raw, sd_bus_message_unref};
}

} // namespace

struct FuzzedPeer::Implementation {
    /// Answers until the process ends.
    void serve() {
        for (;;) {
            sd_bus_message* raw = nullptr;
            const int progress = sd_bus_process(server, &raw);
            const Message call(raw, sd_bus_message_unref);
            if (progress < 0) {
                return;
            }
            std::uint8_t type = 0;
            if (call != nullptr && sd_bus_message_get_type(raw, &type) >= 0 &&
                type == SD_BUS_MESSAGE_METHOD_CALL) {
                const std::lock_guard lock(mutex);
                const Message answer = answerTo(raw, input);
                sd_bus_send(server, answer.get(), nullptr);
            }
            if (progress == 0) {
                sd_bus_wait(server, UINT64_MAX);
            }
        }
    }

    sd_bus* server = nullptr;
    std::optional<DBusConnection> connection;
    std::mutex mutex;
    Input input{{}};
};

FuzzedPeer::FuzzedPeer() : implementation_(new Implementation) {
    // An address in the kernel's abstract namespace disappears with the process.
    const std::string name = "tovrel-fuzz-" + std::to_string(getpid());
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    name.copy(&address.sun_path[1], name.size());
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    require(bind(listener, reinterpret_cast<const sockaddr*>(&address), length) == 0 &&
                listen(listener, 1) == 0,
            "there is a socket");
    implementation_->connection = DBusConnection::open("unix:abstract=" + name);
    require(implementation_->connection.has_value(), "there is a connection");
    const int accepted = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    close(listener);
    sd_bus*& server = implementation_->server;
    sd_id128_t identifier{};
    require(accepted >= 0 && sd_bus_new(&server) >= 0 && sd_bus_set_fd(server, accepted, accepted) >= 0 &&
                sd_bus_set_server(server, 1, identifier) >= 0 && sd_bus_start(server) >= 0,
            "there is a peer");
    std::thread([this] { implementation_->serve(); }).detach();
}

FuzzedPeer& FuzzedPeer::instance() {
    static FuzzedPeer peer;
    return peer;
}

DBusConnection& FuzzedPeer::connection() {
    return *implementation_->connection;
}

MenuReadLimits FuzzedPeer::limits() {
    MenuReadLimits limits;
    limits.nodes = 200;
    limits.entriesPerMenu = 20;
    limits.searchedNodes = 100;
    limits.depth = 8;
    return limits;
}

void FuzzedPeer::answerWith(const std::uint8_t* data, std::size_t size) {
    const std::lock_guard lock(implementation_->mutex);
    implementation_->input = Input({data, data + size});
}

} // namespace tovrel::fuzzing
