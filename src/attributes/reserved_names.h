// The attributes that are copied into the model. All others of a file are dropped.
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace vexil {

namespace attribute {
inline constexpr std::string_view BusType = "BusType";
inline constexpr std::string_view J1939PGN = "J1939PGN";
inline constexpr std::string_view IsNMEA = "IsNMEA";
inline constexpr std::string_view Marrowby_Msg_Name = "Marrowby_Msg_Name";
inline constexpr std::string_view GenMsgSendType = "GenMsgSendType";
inline constexpr std::string_view GenMsgCycleTime = "GenMsgCycleTime";
inline constexpr std::string_view Marrowby_Sig_Name = "Marrowby_Sig_Name";
inline constexpr std::string_view GenSigStartValue = "GenSigStartValue";
inline constexpr std::string_view GenSigInactiveValue = "GenSigInactiveValue";
}  // namespace attribute

// The value of BusType for CAN FD; every other value means classic CAN.
inline constexpr std::string_view CanFdText = "CAN FD";

inline constexpr std::array<std::string_view, 9> ReservedAttributeNames = {
    attribute::BusType,           attribute::J1939PGN,         attribute::IsNMEA,
    attribute::Marrowby_Msg_Name, attribute::GenMsgSendType,   attribute::GenMsgCycleTime,
    attribute::Marrowby_Sig_Name, attribute::GenSigStartValue, attribute::GenSigInactiveValue};

constexpr bool IsReservedAttribute(std::string_view name) {
    return std::find(ReservedAttributeNames.begin(), ReservedAttributeNames.end(), name) !=
           ReservedAttributeNames.end();
}

}  // namespace vexil
