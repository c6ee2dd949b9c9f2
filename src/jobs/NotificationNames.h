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
}  // namespace NotificationNames
