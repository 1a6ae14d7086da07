#pragma once

#include <string>

#include "forms/Controls.h"

namespace tessarine {

// The application's title, as the About box shows it.
inline constexpr const char* kAppTitle = "Tessarine";

// The About box: names the tool, its version (the project's version in CMake) and the commit
// it was built from ("unknown" for a build from outside a git checkout). Its texts are built
// when it loads.
struct frmAbout {
  std::string title;
  Label lblTitle;
  Label lblVersion;
  Label lblCommit;
  Label lblDescription{
      "Tessarine is a Tool to edit existing Wild Pokemon events. Such as Rayuaza,Latios,Groudon,Etc. Even Add "
      "entire new Wild Pokemon Battle scripts and more. "};
  Button cmdOK{"OK"};
};

// The load of the window: title, lblTitle, lblVersion and lblCommit from this build's values.
void LoadAbout(frmAbout& form);

}  // namespace tessarine
