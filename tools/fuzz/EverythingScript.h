#pragma once

#include <string>

#include "language/Commands.h"
#include "language/VariableTable.h"

/// A script that, whatever happens, looks at everything: each cause notes all variables and tests all conditions.
inline std::string EverythingScript() {
    std::string variables, conditions, script = std::string(kScriptHeader) + "\r\n";
    for (const VariableDescription& variable : AllVariables()) variables += std::string(variable.name) + " ";
    for (const Command& condition : CommandsOf(kConditionLine)) conditions += ExampleLine(condition) + "\r\n";
    for (const Command& cause : CommandsOf(kCauseLine)) {
        script += ListLine(cause) + "\r\n(5:2) note {" + variables + "}\r\n";
        script += ListLine(cause) + "\r\n" + conditions + "(5:2) note {all of them hold}\r\n";
    }
    return script;
}
