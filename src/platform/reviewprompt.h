#pragma once

#include <QUrl>

class NavigationController;

/**
 * The system's review prompt on the desktop. Like the phone's, a request for it may go unanswered: it
 * shows at most three times in 365 days and never once the user has gone to the rating page
 * ("is_ratted"). Its "Rate" records that and opens the store's review page.
 */
namespace ReviewPrompt {
void requestReview(NavigationController *navigation);
/** The store's review page: the "store_review_url" setting, else the address the build was given. */
[[nodiscard]] QUrl reviewPageUrl();
/** Opens the review page in the browser; false when nothing could open it. */
bool openReviewPage();
} // namespace ReviewPrompt
