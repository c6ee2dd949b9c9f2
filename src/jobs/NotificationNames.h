#pragma once

#include <QLatin1String>

// The names the job manager posts under; spelled exactly as the screens listen for them.
namespace NotificationNames {
inline constexpr QLatin1String kNotificationIsLocalEncode{"kNotificationIsLocalEncode"};
inline constexpr QLatin1String kNotificationIsMediaLibraryUpload{"kNotificationIsMediaLibraryUpload"};
inline constexpr QLatin1String kNotificationDidFinishLoadingDetailsForFile{"kNotificationDidFinishLoadingDetailsForFile"};
inline constexpr QLatin1String kNotificationDidChangeEncodedPercent{"kNotificationDidChangeEncodedPercent"};
inline constexpr QLatin1String kNotificationDidOccureProblemWhileEncoding{"kNotificationDidOccureProblemWhileEncoding"};
inline constexpr QLatin1String kNotificationDidRanOutOfSpaceOnDisk{"kNotificationDidRanOutOfSpaceOnDisk"};
inline constexpr QLatin1String kNotificationDidFinishUploading{"kNotificationDidFinishUploading"};
inline constexpr QLatin1String kNotificationDidChangeUploadedBytes{"kNotificationDidChangeUploadedBytes"};
inline constexpr QLatin1String kNotificationDidChangeUploadedPercent{"kNotificationDidChangeUploadedPercent"};
inline constexpr QLatin1String kNotificationDidFailUploading{"kNotificationDidFailUploading"};
// A file's encode begins. Object: a QVariantMap with "fileName" (the source's name, QString),
// "number" (1 for the job's first encode, int) and "count" (the encodes of the job, int).
inline constexpr QLatin1String kNotificationDidStartEncodingFile{
    "kNotificationDidStartEncodingFile"};

// Session and catalogue. The credit names lack an "i" ("Loadng"); listeners use them as spelled.
inline constexpr QLatin1String kNotificationDidFinishLoggingIn{"kNotificationDidFinishLoggingIn"};
inline constexpr QLatin1String kNotificationDidFailLoggingIn{"kNotificationDidFailLoggingIn"};
inline constexpr QLatin1String kNotificationDidFinishLoggingOut{"kNotificationDidFinishLoggingOut"};
inline constexpr QLatin1String kNotificationDidFinishLoadingPermissions{
    "kNotificationDidFinishLoadingPermissions"};
inline constexpr QLatin1String kNotificationDidFailLoadingPermissions{
    "kNotificationDidFailLoadingPermissions"};
inline constexpr QLatin1String kNotificationDidFinishLoadingMediaLibraryCategories{
    "kNotificationDidFinishLoadingMediaLibraryCategories"};
inline constexpr QLatin1String kNotificationDidFailLoadingMediaLibraryCategories{
    "kNotificationDidFailLoadingMediaLibraryCategories"};
inline constexpr QLatin1String kNotificationDidFinishLoadingProjectList{
    "kNotificationDidFinishLoadingProjectList"};
inline constexpr QLatin1String kNotificationDidFailLoadingProjectList{
    "kNotificationDidFailLoadingProjectList"};
inline constexpr QLatin1String kNotificationDidFinishLoadngCreditsForCategory{
    "kNotificationDidFinishLoadngCreditsForCategory"};
inline constexpr QLatin1String kNotificationDidFailLoadngCreditsForCategory{
    "kNotificationDidFailLoadngCreditsForCategory"};
inline constexpr QLatin1String kNotificationDidFinishLoadingFoldersForProject{
    "kNotificationDidFinishLoadingFoldersForProject"};
inline constexpr QLatin1String kNotificationDidFailLoadingFoldersForProject{
    "kNotificationDidFailLoadingFoldersForProject"};
}  // namespace NotificationNames
