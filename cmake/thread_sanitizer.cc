// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What every program that is built with the thread sanitizer knows by itself, so that those that a
// test starts, or the build, need no environment for it.

extern "C" const char* __tsan_default_options();
extern "C" const char* __tsan_default_suppressions();

/// The tests fork while threads run; the child only becomes another program.
extern "C" const char* __tsan_default_options() { return "die_after_fork=0"; }

/// The toolkit, and the allocator of the synthesiser's object library, order their threads by means
/// of their own, which the sanitizer does not see. What they read and write by themselves is left
/// out; ours is not, also where they have called it. (The second one's locks have to be seen: the
/// sanitizer would meet their unlocking alone.)
extern "C" const char* __tsan_default_suppressions() {
  return "called_from_lib:libQt6Core.so\n"
         "called_from_lib:libQt6Gui.so\n"
         "called_from_lib:libQt6Widgets.so\n"
         "race:libgobject-2.0.so\n";
}
