#include "model/fields/places.h"
#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace model {

namespace {

bool IsBelow(std::string_view path, std::string_view above) {
    return path.size() > above.size() && path.starts_with(above) &&
           (above.empty() || path[above.size()] == '.' || path[above.size()] == '[');
}

/// Where the places of each path stand.
std::unordered_map<std::string_view, const Place*> ByPath(const Places& places) {
    std::unordered_map<std::string_view, const Place*> found;
    found.reserve(places.size());
    for (const Place& place : places)
        found.emplace(place.path, &place);
    return found;
}

/// The text of a place with all that belongs to it: a colour's parts, the axis behind its kind.
std::string FullText(const Places& places, const Place& place) {
    std::string text = place.text;
    for (const Place* next = &place + 1; next != places.data() + places.size(); ++next) {
        const bool part = place.kind == Place::Whole && IsBelow(next->path, place.path);
        const bool axis = next == &place + 1 && next->joins && next->text != "none";
        if (!part && !axis)
            break;
        if (!next->text.empty())
            text += (text.empty() ? "" : part ? ", " : " ") + next->text;
    }
    return text;
}

/// What kind of layer stands at a path.
std::string KindText(const Places& places, const std::string& path) {
    const Place* type = FindPlace(places, path.empty() ? "type" : path + ".type");
    return type == nullptr ? std::string() : type->text;
}

/// The changes between two objects whose places match: nearly always so, and far cheaper than by paths.
bool InStep(const Places& from, const Places& to) {
    return from.size() == to.size() &&
           std::equal(
               from.begin(), from.end(), to.begin(), [](auto& a, auto& b) { return a.path == b.path; });
}

} // namespace

std::vector<Change> Changes(const Places& from, const Places& to) {
    const bool inStep = InStep(from, to);
    const auto before = inStep ? decltype(ByPath(from))() : ByPath(from);
    std::vector<Change> found;
    for (std::size_t i = 0; i < to.size(); ++i) {
        const Place& place = to[i];
        const Place* old = nullptr;
        if (inStep)
            old = &from[i];
        else if (const auto at = before.find(place.path); at != before.end())
            old = at->second;
        if (old == nullptr) // below what has been told
            continue;
        const bool otherKind = old->type != place.type;
        if (place.text == old->text && !otherKind && place.kind != Place::Whole)
            continue;
        const Place& unit = place.joins ? to[i - 1] : place;
        const Place& oldUnit = place.joins ? *(old - 1) : *old;
        Change change{unit.path, FullText(from, oldUnit), FullText(to, unit)};
        if (otherKind) // of layer
            change = {place.path, KindText(from, place.path), KindText(to, place.path)};
        const bool differs = otherKind || change.from != change.to;
        if (differs && (found.empty() || found.back().path != change.path))
            found.push_back(std::move(change));
        // One change tells of all below it.
        if (place.kind == Place::Whole || (differs && place.kind != Place::Single))
            while (i + 1 < to.size() && IsBelow(to[i + 1].path, place.path))
                ++i;
    }
    return found;
}

Place JoiningPlace(const char* path, const std::int32_t& row) {
    const auto copy = [](void* to, const void* from) {
        *static_cast<std::int32_t*>(to) = *static_cast<const std::int32_t*>(from);
    };
    return {path,
            row < 0 ? "none" : std::to_string(row),
            Place::Single,
            &row,
            TypeTag<std::int32_t>(),
            copy,
            nullptr,
            true};
}

const Place* FindPlace(const Places& places, const std::string& path) {
    const auto found =
        std::find_if(places.begin(), places.end(), [&](const Place& place) { return place.path == path; });
    return found == places.end() ? nullptr : &*found;
}

bool AssignAt(const std::string& path, const Places& to, const Places& from) {
    const Place* target = FindPlace(to, path);
    const Place* source = FindPlace(from, path);
    if (target == nullptr || source == nullptr)
        return false;
    if (target->type == source->type) {
        target->assign(const_cast<void*>(target->address), source->address);
        const Place* joined = target + 1;
        if (joined != to.data() + to.size() && joined->joins &&
            source[1].joins) // a pointer is turned by Relate
            joined->assign(const_cast<void*>(joined->address), source[1].address);
        return true;
    }
    // A layer of another kind: its list puts a copy in its place.
    const std::size_t bracket = path.rfind('[');
    const std::string list = path.substr(0, bracket);
    const Place* layers = FindPlace(to, list);
    const Place* theirs = FindPlace(from, list);
    if (bracket == std::string::npos || layers == nullptr || theirs == nullptr || layers->replace == nullptr)
        return false;
    layers->replace(const_cast<void*>(layers->address), theirs->address,
                    std::atoi(path.c_str() + bracket + 1));
    return true;
}

void Relate(const std::string& path, const Places& now, const Places& before, const Places& from) {
    const Place* axes = FindPlace(now, "axes");
    if (axes == nullptr || axes->type != TypeTag<CXYChartAxisMgr>())
        return;
    const auto old = ByPath(before);
    const auto theirs = ByPath(from);
    const Place* last = nullptr;
    for (const Place& place : now) {
        const bool taken = place.path == path || IsBelow(place.path, path) ||
                           (place.joins && last != nullptr && last->path == path);
        last = &place;
        if (!place.joins)
            continue;
        const auto& source = taken ? theirs : old;
        const auto at = source.find(place.path);
        const std::string text = at == source.end() ? "none" : at->second->text;
        if (text == "gone")
            continue; // the host's own
        const bool none = text == "none";
        *static_cast<CXYChartAxis**>(const_cast<void*>(place.address)) =
            static_cast<const CXYChartAxisMgr*>(axes->address)->GetSafeAxis(none ? -1 : std::stoi(text));
    }
}

} // namespace model
