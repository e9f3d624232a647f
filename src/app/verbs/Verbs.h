#pragma once

#include <memory>

#include "app/terminal/Console.h"
#include "app/verbs/CommandLine.h"
#include "app/verbs/MenuSource.h"
#include "platform/PreferencesDomain.h"
#include "support/TextServices.h"

/// The verbs of the command line, one file each. Every function prints its result on standard output and
/// returns the exit status; it throws Failure when it cannot do its work.
namespace tovrel::verbs {

/// The input of a verb about menus.
struct Context {
    const command_line::Invocation& invocation;
    const Console& console;
    const MenuSource& source;
    PreferencesDomain& preferences;
    const TextServices& textServices;
};

/// `menus`: the menus as a tree.
int menus(const Context& context);

/// `commands`: the built command list, in its order.
int commands(const Context& context);

/// `search QUERY…`: the ranked commands of each query.
int search(const Context& context);

/// `press ID`: brings the application to the front and presses the menu item of a command.
int press(const Context& context);

/// `record`: writes a recording of the menus.
int record(const Context& context);

/// `preferences …`.
int preferences(const command_line::PreferencesArguments& arguments, bool asJson,
                PreferencesDomain& preferences, const Console& console);

} // namespace tovrel::verbs
