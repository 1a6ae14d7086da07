#include "shell/frmAbout.h"

#include "BuildVersion.h"  // made by the build in its own folder: kBuildVersion, kBuildCommit

namespace tessarine {

void LoadAbout(frmAbout& form) {
  form.title = std::string("About ") + kAppTitle;
  form.lblTitle.caption = kAppTitle;
  form.lblVersion.caption = std::string("Version ") + kBuildVersion;
  form.lblCommit.caption = std::string("Commit ") + kBuildCommit;
}

}  // namespace tessarine
