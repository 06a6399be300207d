// A small file that executes all code of a read and a write.
// SPDX-License-Identifier: MIT
#include "faults/every_statement.h"

#include <string_view>

namespace vexil::faults {
namespace {

constexpr std::string_view Preamble = R"(VERSION "of a file that has everything"

NS_ :
    NS_DESC_
    CM_
    BA_DEF_
    FILTER

BS_ : 500 : 1,2

BU_ : Engine_Control Instruments
EV_ Ambient: 0 [0|1] "" 0 1 DUMMY_NODE_VECTOR0 Vector__XXX;
VAL_TABLE_ Switch 1 "On" 0 "Off" ;

)";

constexpr std::string_view Messages =
    R"(BO_ 256 Engine_Status_Of_The_Second_Bank_Left: 8 Engine_Control_Unit_Left
 SG_ Selector_Of_The_Page_Of_Values M : 0|8@1+ (1,0) [0|255] "" Instruments
 SG_ Coolant_Temperature_Of_The_Bank m1 : 8|16@1- (0.0625,-273.15) [-273.15|1500.0001] "grad Celsius am Kühler °C" Instruments_Of_The_Driver,Instruments_Of_The_Codriver
 SG_ Torque : 32|32@1- (1e-7,0.123456789012) [-1e+20|1e+20] "Nm" Gearbox
 SG_ Twice : 24|8@0+ (1,0) [0|0] "" Gearbox
 SG_ Twice : 24|8@0+ (1,0) [0|0] "" Gearbox
 SG_ A_name_that_is_longer_than_an_identifier_1 : 24|8@0+ (1,0) [0|0] "" Gearbox
 SG_ A_name_that_is_longer_than_an_identifier_2 : 24|8@0+ (1,0) [0|0] "" Gearbox
 SG_ Refused : 24|8@2+ (1,0) [0|0] "" Gearbox

BO_ 2566834709 Extended: 8 Vector__XXX
 SG_ Precise : 0|64@1- (1,0) [0|0] "" Vector__XXX
 SG_ Refused_by_its_factor : 0|64@1- (1) [0|0] "" Vector__XXX

BO_ 256 The_Same_Id_Once_More: 8 Engine_Control_Unit_Left
 SG_ Torque : 32|32@1- (1,0) [0|0] "Nm" Gearbox
 SG_ Name with blanks : 0|8@1+ (1,0) [0|0] "" Gearbox
 SG_ Range_Is_Missing : 0|8@1+ (1,0) "" Gearbox

BO_ x Refused_by_its_id: 8 Gearbox
BO_ 300 Refused by its missing colon
BO_ 301 Refused_by_its_size: many Gearbox
)";

constexpr std::string_view Texts = R"(CM_ "of the network";
CM_ BU_ Gearbox "of a node";
CM_ BO_ 256 "A comment with "quotes" and a keyword
BO_ in it, over more than one line";
CM_ BO_ 256 "And a second one
of two lines";
CM_ SG_ 256 Torque "Taken at the crankshaft, the clutch being closed";
CM_ SG_ 256 Name with blanks "Found by its whole name";
CM_ SG_ 512 Signal_Number_Of_Many_33 "Found by the index of the message";
CM_ EV_ Ambient "of a variable";

BA_DEF_ "BusType" STRING ;
BA_DEF_ "J1939PGN" INT 0 1;
BA_DEF_ "IsNMEA" INT 0 1;
BA_DEF_ BO_ "GenMsgSendType" ENUM "Cyclic","On change and on request","NoMsgSendType";
BA_DEF_ BO_ "GenMsgCycleTime" INT 0 65535;
BA_DEF_ BO_ "Marrowby_Msg_Name" STRING ;
BA_DEF_ SG_ "Marrowby_Sig_Name" STRING ;
BA_DEF_ SG_ "GenSigStartValue" INT 0 65535;
BA_DEF_ SG_ "GenSigInactiveValue" INT 0 65535;
BA_DEF_ BU_ "OfANode" HEX 0 255;
BA_DEF_ "Unreserved" FLOAT 0 1;
BA_DEF_DEF_ "BusType" "CAN FD";
BA_DEF_DEF_ "GenMsgSendType" "On change and on request";
BA_DEF_DEF_ "GenMsgCycleTime" 100;
BA_DEF_DEF_ "Marrowby_Msg_Name" "";
BA_DEF_DEF_ "GenSigStartValue" 0;
BA_ "BusType" "CAN FD and more of it";
BA_ "J1939PGN" 1;
BA_ "IsNMEA" 0;
BA_ "GenMsgSendType" BO_ 256 0;
BA_ "GenMsgSendType" BO_ 2566834709 "NoMsgSendType";
BA_ "GenMsgCycleTime" BO_ 256 20;
BA_ "Marrowby_Msg_Name" BO_ 256 "Engine status of the second bank, on the left side";
BA_ "Marrowby_Sig_Name" SG_ 256 Torque "Torque at the crankshaft of the engine";
BA_ "GenSigStartValue" SG_ 256 Torque 17;
BA_ "GenSigInactiveValue" SG_ 256 Torque 18;
BA_ "Unreserved" 1;

VAL_ 256 Torque 3 "A description of the third value" 1 "One" -2 "Two below" ;
VAL_ 256 Torque 1 "Once more" 0 "Nothing" 3 "The third again, as a longer text" ;
VAL_ 256 Torque -5 "Five below, in front of all of those" ;
VAL_ 512 Signal_Number_Of_Many_33 2 "Two" 1 "One" 0 "Nothing" ;
VAL_ Ambient 1 "On" ;
SIG_VALTYPE_ 256 Torque : 1;
SIG_VALTYPE_ 2566834709 Precise : 2;
SIG_VALTYPE_ 512 Signal_Number_Of_Many_33 : 1;
)";

constexpr std::string_view DroppedStatements = R"(NS_DESC_ x
CAT_DEF_ x
CAT_ x
FILTER x
EV_DATA_ x
ENVVAR_DATA_ x
SGTYPE_ x
SGTYPE_VAL_ x
BA_DEF_SGTYPE_ x
BA_SGTYPE_ x
SIG_TYPE_REF_ x
SIG_GROUP_ x
SIGTYPE_VALTYPE_ x
BO_TX_BU_ x
BA_DEF_REL_ x
BA_REL_ x
BA_DEF_DEF_REL_ x
BU_SG_REL_ x
BU_EV_REL_ x
BU_BO_REL_ x
SG_MUL_VAL_ x
)";

std::string MessageOfManySignals() {
    std::string text = "BO_ 512 Many: 8 Gearbox\n";
    for (int number = 0; number < 34; ++number) {
        text += " SG_ Signal_Number_Of_Many_" + std::to_string(number) +
                " : 0|32@1+ (1,0) [0|0] \"\" Gearbox\n";
    }
    return text + "\n";
}

std::string ManyTokens() {
    std::string text = "BA_DEF_ BO_ \"Of many values\" ENUM \"the first\"";
    for (int value = 1; value < 100; ++value) {
        text += ",\"" + std::to_string(value) + '"';
    }
    return text + ";\n";
}

std::string LongTexts() {
    std::string text = "CM_ BO_ 2566834709 \"" + std::string(9000, 'x') + "\";\n";
    text += "CM_ BO_ 512 \"of many lines\n";
    for (int line = 0; line < 50; ++line) {
        text += std::string(100, 'y') + '\n';
    }
    return text + "\";\n";
}

}  // namespace

std::string EveryStatement() {
    std::string text(Preamble);
    text += MessageOfManySignals();
    text += Messages;
    text += Texts;
    text += ManyTokens();
    text += LongTexts();
    text += DroppedStatements;
    return text + "BO_ 1 The_Last_Message_Of_The_File: 8 Vector__XXX\n";
}

}  // namespace vexil::faults
