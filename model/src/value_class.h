#pragma once

// The parts of a value class that are the same for all: copying member by member, behind exported functions.

/// The copying operations and the destructor of a value class, member by member.
#define DEFINE_VALUE_CLASS(Class)                                                                            \
    Class::Class(const Class& other) = default;                                                              \
    Class& Class::operator=(const Class& other) = default;                                                   \
    Class::~Class() = default;

/// A plain record: its copy constructor is no function at all.
#define DEFINE_RECORD(Class)                                                                                 \
    Class::Class() = default;                                                                                \
    Class& Class::operator=(const Class& other) = default;

namespace model {

constexpr unsigned transparent = 0xFF000000;
constexpr unsigned leftToLibrary = 0xFFFFFFFF;

} // namespace model
