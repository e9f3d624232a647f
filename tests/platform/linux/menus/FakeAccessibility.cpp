#include "platform/linux/menus/FakeAccessibility.h"

#include <cstdlib>
#include <fstream>
#include <string_view>
#include <unistd.h>

namespace tovrel {
namespace {

constexpr const char* rootPath = "/org/a11y/atspi/accessible/root";

/// Answers with a list of (bus name, object path).
void replyWithReferences(sd_bus_message* call,
                         const std::vector<std::pair<std::string, std::string>>& objects) {
    sd_bus_message* reply = nullptr;
    sd_bus_message_new_method_return(call, &reply);
    sd_bus_message_open_container(reply, 'a', "(so)");
    for (const auto& [busName, path] : objects) {
        sd_bus_message_append(reply, "(so)", busName.c_str(), path.c_str());
    }
    sd_bus_message_close_container(reply);
    sd_bus_send(nullptr, reply, nullptr);
    sd_bus_message_unref(reply);
}

std::string configuration(const std::filesystem::path& folder) {
    return "<busconfig><type>session</type><listen>unix:dir=" + folder.string() +
           "</listen><policy context=\"default\"><allow send_destination=\"*\"/><allow eavesdrop=\"true\"/>"
           // allows answers from connections that were not asked, which a stricter bus would hold back
           "<allow send_requested_reply=\"false\" send_type=\"method_return\"/>"
           "<allow receive_requested_reply=\"false\" receive_type=\"method_return\"/>"
           "<allow own=\"*\"/></policy></busconfig>";
}

/// The time until the thread checks whether it must end.
constexpr std::chrono::microseconds shortWait{5'000};

void answerCalls(sd_bus* bus, const FakeService::Answer& answer, const std::atomic<bool>& isStopping) {
    while (!isStopping && sd_bus_is_open(bus) > 0) {
        sd_bus_message* message = nullptr;
        const int progress = sd_bus_process(bus, &message);
        if (message != nullptr && sd_bus_message_is_method_call(message, nullptr, nullptr) > 0) {
            answer(message);
        }
        sd_bus_message_unref(message);
        if (progress < 0) {
            break;
        }
        if (progress == 0) {
            sd_bus_wait(bus, shortWait.count());
        }
    }
}

} // namespace

FakeService::FakeService(const std::string& address, const std::vector<std::string>& names, Answer answer)
    : answer_(std::move(answer)) {
    sd_bus* bus = nullptr;
    sd_bus_new(&bus);
    bus_.reset(bus);
    sd_bus_set_address(bus, address.c_str());
    sd_bus_set_bus_client(bus, 1);
    sd_bus_start(bus);
    for (const std::string& name : names) {
        sd_bus_request_name(bus, name.c_str(), 0);
    }
    const char* unique = nullptr;
    sd_bus_get_unique_name(bus, &unique);
    uniqueName_ = unique == nullptr ? "" : unique;
    thread_ = std::thread([this] { serve(); });
}

FakeService::~FakeService() {
    isStopping_ = true;
    thread_.join();
}

void FakeService::serve() {
    answerCalls(bus_.get(), answer_, isStopping_);
}

FakeAccessibility::FakeAccessibility() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tovrel-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    std::ofstream(folder_ / "bus.conf") << configuration(folder_);
    daemon_ = std::make_unique<ServerProcess>(
        std::vector<std::string>{"dbus-daemon", "--nofork",
                                 "--config-file=" + (folder_ / "bus.conf").string(), "--print-address={fd}"});
    setenv("DBUS_SESSION_BUS_ADDRESS", address().c_str(), 1);
    unsetenv("AT_SPI_BUS_ADDRESS");
    service_ = std::make_unique<FakeService>(
        address(), std::vector<std::string>{"org.a11y.Bus", "org.a11y.atspi.Registry"},
        [this](sd_bus_message* call) { answer(call); });
}

FakeAccessibility::~FakeAccessibility() {
    service_.reset();
    daemon_.reset();
    std::filesystem::remove_all(folder_);
}

void FakeAccessibility::add(const std::string& uniqueName) {
    const std::lock_guard lock(mutex_);
    applications_.push_back(uniqueName);
}

void FakeAccessibility::answer(sd_bus_message* call) {
    const std::string_view member = sd_bus_message_get_member(call);
    if (isSilent) {
        return;
    }
    if (member == "GetAddress" && refusesAddress) {
        sd_bus_reply_method_errorf(call, SD_BUS_ERROR_ACCESS_DENIED, "%s", address().c_str());
    } else if (member == "GetAddress") {
        sd_bus_reply_method_return(call, "s", address().c_str());
    } else if (member == "Get") {
        sd_bus_reply_method_return(call, "v", "b", isEnabled ? 1 : 0);
    } else if (member == "Set") {
        int value = 0;
        sd_bus_message_read(call, "ssv", nullptr, nullptr, "b", &value);
        isEnabled = value != 0;
        sd_bus_reply_method_return(call, "");
    } else {
        const std::lock_guard lock(mutex_);
        std::vector<std::pair<std::string, std::string>> objects;
        for (const std::string& name : applications_) {
            objects.emplace_back(name, rootPath);
        }
        replyWithReferences(call, objects);
    }
}

FakeApplication::FakeApplication(FakeAccessibility& accessibility, Nodes nodes, Manners manners)
    : nodes_(std::move(nodes)), manners_(std::move(manners)) {
    service_ = std::make_unique<FakeService>(accessibility.address(), std::vector<std::string>(),
                                             [this](sd_bus_message* call) { answer(call); });
    accessibility.add(service_->uniqueName());
}

std::vector<std::string> FakeApplication::pressed() {
    const std::lock_guard lock(mutex_);
    return pressed_;
}

std::string FakeApplication::path(std::size_t number) const {
    return number == 0
               ? rootPath
               : "/org/a11y/atspi/accessible/" + std::to_string(generation_) + "_" + std::to_string(number);
}

void FakeApplication::answer(sd_bus_message* call) {
    const std::size_t before = calls_++;
    if (before >= manners_.vanishesAfter) {
        service_->vanish();
        return;
    }
    if (before >= manners_.hangsAfter) {
        return;
    }
    std::this_thread::sleep_for(manners_.delay); // The application is that slow; this waits for nothing.
    const std::string asked = sd_bus_message_get_path(call);
    const std::size_t underscore = asked.rfind('_');
    const std::size_t number = underscore == std::string::npos ? 0 : std::stoul(asked.substr(underscore + 1));
    const bool isPress = sd_bus_message_is_method_call(call, "org.a11y.atspi.Action", "DoAction") > 0;
    if (isPress && manners_.rebuildsBeforePress && generation_ == 0) {
        generation_ = 1;
    }
    if (asked != path(number)) {
        sd_bus_reply_method_errorf(call, SD_BUS_ERROR_UNKNOWN_OBJECT, "No such object");
    } else if (isPress) {
        answerPress(call, number);
    } else if (manners_.answersWithWrongTypes && number >= manners_.wrongTypesFrom) {
        sd_bus_reply_method_return(call, "d", 1.5);
    } else {
        answerRead(call, number);
    }
}

void FakeApplication::answerPress(sd_bus_message* call, std::size_t number) {
    {
        const std::lock_guard lock(mutex_);
        pressed_.push_back(nodes_(number).name);
    }
    if (manners_.answersPresses) {
        sd_bus_reply_method_return(call, "b", 1);
    }
}

void FakeApplication::answerRead(sd_bus_message* call, std::size_t number) {
    const std::string_view member = sd_bus_message_get_member(call);
    const FakeNode node = nodes_(number);
    if (member == "GetRole") {
        sd_bus_reply_method_return(call, "u", node.role);
    } else if (member == "GetState") {
        sd_bus_reply_method_return(call, "au", 2, static_cast<std::uint32_t>(node.states),
                                   static_cast<std::uint32_t>(node.states >> 32U));
    } else if (member == "GetKeyBinding") {
        sd_bus_reply_method_return(call, "s", node.keyBinding.c_str());
    } else if (member == "GetInterfaces") {
        sd_bus_reply_method_return(call, "as", node.hasComponent ? 2 : 1, "org.a11y.atspi.Accessible",
                                   "org.a11y.atspi.Component");
    } else if (member == "GetChildren") {
        std::vector<std::pair<std::string, std::string>> objects;
        for (const std::size_t child : node.children) {
            objects.emplace_back(service_->uniqueName(), path(child));
        }
        replyWithReferences(call, objects);
    } else if (member == "Get") {
        const char* interface = nullptr;
        const char* property = nullptr;
        sd_bus_message_read(call, "ss", &interface, &property);
        const bool isName = std::string_view(property) == "Name";
        sd_bus_reply_method_return(call, "v", "s", isName ? node.name.c_str() : manners_.toolkit.c_str());
    } else {
        // A real application may crash on any other call.
        sd_bus_reply_method_errorf(call, SD_BUS_ERROR_UNKNOWN_METHOD, "Not for this reader");
    }
}

} // namespace tovrel
