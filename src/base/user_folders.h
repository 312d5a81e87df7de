#pragma once

#include <string>

namespace folioscope {

// The user's folders as the environment names them at the moment of the call, without a slash at the end.
// A relative path counts as not set. Empty: neither the folder's own variable nor HOME names one; no
// other place is guessed then.

std::string ConfigFolder();  // $XDG_CONFIG_HOME or ~/.config
std::string DataFolder();    // $XDG_DATA_HOME or ~/.local/share

std::string TemporaryFolder();  // $TMPDIR or /tmp, never empty

}  // namespace folioscope
