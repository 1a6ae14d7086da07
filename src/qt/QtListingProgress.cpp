#include "qt/QtListingProgress.h"

#include <cmath>

#include "forms/Dialogs.h"

namespace tessarine {
namespace {

constexpr int kSteps = 1000;
constexpr int kShowAfterMs = 500;

}  // namespace

QtListingProgress::QtListingProgress(QWidget* parent)
    : dialog_(QStringLiteral("Listing..."), QStringLiteral("Cancel"), 0, kSteps, parent) {
  dialog_.setWindowTitle(QString::fromUtf8(kDefaultTitle.data(), qsizetype(kDefaultTitle.size())));
  dialog_.setWindowModality(Qt::WindowModal);
  dialog_.setMinimumDuration(kShowAfterMs);
  dialog_.setValue(0);  // the half second counts from here
}

ListingProgress QtListingProgress::Callback(double first, double last) {
  return [this, first, last](double fractionDone) {
    // Once shown, each step also lets the dialog take the press of Cancel; at the last step
    // it closes itself.
    dialog_.setValue(static_cast<int>(std::lround((first + (last - first) * fractionDone) * kSteps)));
    return !dialog_.wasCanceled();
  };
}

}  // namespace tessarine
