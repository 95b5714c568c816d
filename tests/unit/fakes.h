#pragma once

#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "platform/udp_socket.h"
#include "text/character_set.h"
#include "text/failure.h"

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The least desktop that a single class can be tested on.
namespace unit {

/// The letters that every test uses.
inline text::CharacterSet const western = text::CharacterSet::western();

/// Files that live in a map. A folder is a name in it, too.
class MemoryFiles : public platform::Files {
public:
    [[nodiscard]] bool exists(std::string_view path) const override
    {
        return contents.contains(path);
    }

    [[nodiscard]] bool is_file(std::string_view path) const override
    {
        return exists(path) && !folders.contains(path);
    }

    [[nodiscard]] std::string read(std::string_view path) const override
    {
        return contents.at(found(path));
    }

    void write(std::string_view path, std::string_view content) override
    {
        if (read_only) {
            refuse("Permission denied", 70);
        }
        contents[std::string(path)] = content;
        ++writes;
    }

    void remove(std::string_view path) override { contents.erase(found(path)); }

    void make_folder(std::string_view path) override
    {
        contents[std::string(path)];
        folders.emplace(path);
    }

    std::map<std::string, std::string, std::less<>> contents;
    std::set<std::string, std::less<>> folders;
    bool read_only = false;
    int writes = 0;

private:
    [[noreturn]] static void refuse(std::string_view words, int number)
    {
        throw text::Failure(words, number, "files");
    }

    [[nodiscard]] std::string found(std::string_view path) const
    {
        if (!exists(path)) {
            refuse("File not found", 53);
        }
        return std::string(path);
    }
};

class FixedClock : public platform::Clock {
public:
    [[nodiscard]] text::LocalTime now() const override { return time; }

    text::LocalTime time{
        .year = 2026, .month = 11, .day = 15, .hour = 15, .minute = 18, .second = 2};
};

class FakeEnvironment : public platform::Environment {
public:
    [[nodiscard]] std::string value(std::string_view name) const override
    {
        auto const found = values.find(name);
        return found == values.end() ? std::string() : found->second;
    }

    [[nodiscard]] std::string own_value(std::string_view name) const override
    {
        return value(name);
    }

    std::map<std::string, std::string, std::less<>> values{{"computername", "room12"},
                                                           {"username", "alice"}};
};

/// Boxes that a script answers: input boxes with the next of `answers`, in the end with Cancel;
/// file boxes always with Cancel.
class ScriptedBoxes : public platform::Boxes {
public:
    platform::Answer show(platform::MessageBox const& box) override
    {
        shown.push_back(box);
        behind();
        return platform::Answer::ok;
    }

    std::string ask(platform::InputBox const& box) override
    {
        asked.push_back(box);
        behind();
        if (answers.empty()) {
            return {};
        }
        auto answer = std::move(answers.front());
        answers.pop_front();
        return answer;
    }

    std::string choose_file(platform::FileBox const& /*box*/) override { return {}; }

    std::deque<std::string> answers;
    /// What happens behind each box before it is answered.
    std::function<void()> behind = [] {};
    std::vector<platform::InputBox> asked;
    std::vector<platform::MessageBox> shown;
};

/// A socket without a network: it remembers what it was told.
class IdleSocket : public platform::UdpSocket {
public:
    struct Sent {
        std::string datagram;
        std::string host;
        int port;

        bool operator==(Sent const&) const = default;
    };

    void close() override { bound_to = 0; }

    void bind(int port) override
    {
        if (port == taken_port) {
            throw text::Failure(text::address_in_use, 98, "socket");
        }
        bound_to = port;
    }

    void send(std::string_view datagram, std::string_view host, int port) override
    {
        if (no_network) {
            throw text::Failure(text::no_route_to_host, 113, "socket");
        }
        sent.push_back({std::string(datagram), std::string(host), port});
    }

    [[nodiscard]] int state() const override { return bound_to == 0 ? state_closed : state_bound; }
    [[nodiscard]] std::string local_address() const override { return "192.168.7.12"; }
    [[nodiscard]] std::string local_host_name() const override { return "room12"; }

    int bound_to = 0;
    int taken_port = 0;
    bool no_network = false;
    std::vector<Sent> sent;
};

} // namespace unit
