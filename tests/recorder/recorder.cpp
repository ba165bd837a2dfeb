#include "tests/recorder/recorder.h"
#include "tests/recorder/recorder_core.h"
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <map>
#include <utility>

namespace recorder {
namespace {
struct Name {
    std::string shown;
    const void* root; // what was created by itself, and ends this handle with it
};

struct Log {
    bool on = false;
    int depth = 0;
    std::vector<std::string> lines;
    std::map<std::pair<std::string, const void*>, Name> names;
    std::map<std::string, int> counts;
};

Log& log() {
    thread_local Log log;
    return log;
}

const void* rootOf(const void* handle) {
    const auto& names = log().names;
    const auto known =
        std::find_if(names.begin(), names.end(), [&](const auto& entry) { return entry.first.second == handle; });
    return known == names.end() ? handle : known->second.root;
}
} // namespace

Recording::Recording() {
    log() = {};
    log().on = true;
}

Recording::~Recording() { log().on = false; }

const std::vector<std::string>& Recording::Lines() const { return log().lines; }

int Recording::Count(const std::string& operation) const {
    return static_cast<int>(std::count_if(
        Lines().begin(), Lines().end(), [&](const std::string& line) { return line.starts_with(operation + "("); }));
}

void Recording::Clear() { log().lines.clear(); }

Call::Call(const char* name, std::initializer_list<std::string> arguments) {
    if (log().depth++ > 0 || !log().on) return;
    std::string line = name + std::string("(");
    for (const std::string& argument : arguments) line += (&argument == arguments.begin() ? "" : ", ") + argument;
    log().lines.push_back(line + ")");
}

Call::~Call() { --log().depth; }

std::string text(bool value) { return value ? "true" : "false"; }

std::string text(int value) {
    char buffer[16];
    const bool colour = value < -0xffff || value > 0xffff;
    std::snprintf(buffer, sizeof buffer, colour ? "0x%08x" : "%d", static_cast<unsigned>(value));
    return buffer;
}

std::string text(double value) {
    char buffer[32];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

std::string text(const char* value) {
    if (!value) return "null";
    std::string shown = "\"";
    for (; *value; ++value) {
        if (*value == '"' || *value == '\\') shown += '\\';
        shown += *value == '\n' ? std::string("\\n") : std::string(1, *value);
    }
    return shown + '"';
}

std::string handle(const char* kind, const void* handle) {
    if (!handle) return "null";
    number(kind, handle, nullptr);
    return log().names.at({kind, handle}).shown;
}

void number(const char* kind, const void* handle, const void* from) {
    if (!handle || log().names.contains({kind, handle})) return;
    const std::string shown = kind + ("#" + std::to_string(++log().counts[kind]));
    log().names[{kind, handle}] = {shown, rootOf(from ? from : handle)};
}

void forget(const void* handle) {
    std::erase_if(
        log().names, [root = rootOf(handle)](const auto& entry) { return entry.second.root == root; });
}
} // namespace recorder
