#pragma once

#include <string>

#include "forms/Controls.h"

namespace tessarine {

// The application's title and version, as the About box shows them.
inline constexpr const char* kAppTitle = "Tessarine";
inline constexpr int kVersionMajor = 0;
inline constexpr int kVersionMinor = 5;
inline constexpr int kVersionRevision = 112;

// The About box: names the tool and its version. Its texts are built when it loads.
struct frmAbout {
  std::string title;
  Label lblTitle;
  Label lblVersion;
  Label lblDescription{
      "Tessarine is a Tool to edit existing Wild Pokemon events. Such as Rayuaza,Latios,Groudon,Etc. Even Add "
      "entire new Wild Pokemon Battle scripts and more. "};
  Button cmdOK{"OK"};
};

// The load of the window: title, lblTitle and lblVersion from the application's values.
void LoadAbout(frmAbout& form);

}  // namespace tessarine
