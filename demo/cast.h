#pragma once

#include <array>
#include <string_view>

/// Who works in the virtual office.
namespace demo::cast {

struct Member {
    std::string_view computer;
    std::string_view account;
    char const* name; ///< as everybody reads it, in UTF-8
};

/// The one whose desk is in front: whoever watches.
inline constexpr Member alice{"ROOM12", "alice", "Alice Meyer"};

// Who is at work before.
inline constexpr Member bob{"ROOM07", "bob", "Bob Hartmann"};
inline constexpr Member clara{"ROOM14", "clara", "Clara Novak"};
inline constexpr Member david{"ROOM21", "david", "David Okafor"};
inline constexpr Member elena{"ROOM15", "elena", "Elena Rossi"};
inline constexpr Member farid{"ROOM08", "farid", "Farid Haddad"};
inline constexpr Member grace{"RECEPTION", "grace", "Grace Lin"};
inline constexpr Member henrik{"ROOM30", "henrik", "Henrik Olsen"};
inline constexpr Member ines{"ROOM31", "ines", "Inês Duarte"};
inline constexpr Member jonas{"WORKSHOP", "jonas", "Jonas Weber"};
inline constexpr Member kim{"LAB1", "kim", "Kim Park"};
inline constexpr Member lucas{"LAB2", "lucas", "Lucas Martin"};

/// Whose first day it is.
inline constexpr Member mei{"ROOM18", "mei", "Mei Tanaka"};

inline constexpr std::array early_birds{bob,    clara, david, elena, farid, grace,
                                        henrik, ines,  jonas, kim,   lucas};

} // namespace demo::cast
