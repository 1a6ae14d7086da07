#pragma once

#include <QProgressDialog>

#include "scripts/ListScript.h"

namespace tessarine {

// The progress dialog of one press of Command2. It stays hidden while the work is quick and
// appears once it is likely to take longer than half a second; its Cancel stops the work,
// and Text4 keeps what it had. Made on the stack of the press:
//
//   QtListingProgress progress(this);
//   ListIntoText4(form, rom, dialogs, progress.Callback());
class QtListingProgress {
 public:
  explicit QtListingProgress(QWidget* parent);
  QtListingProgress(const QtListingProgress&) = delete;
  QtListingProgress& operator=(const QtListingProgress&) = delete;

  // Shows the work's fraction done from `first` to `last` of the bar; valid while this lives.
  // The dialog closes when the bar is full.
  ListingProgress Callback(double first = 0.0, double last = 1.0);

  QProgressDialog& dialog() { return dialog_; }

 private:
  QProgressDialog dialog_;
};

}  // namespace tessarine
