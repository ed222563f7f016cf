#pragma once

/// What the rooms without words say of their failures. The frame of the service's clients puts it into the
/// customer's language.
namespace ombrivane::errorText {

inline constexpr const char* answerMissing = "The operation ended without an answer.";
inline constexpr const char* answerNotUnderstood = "The service's answer could not be understood.";
inline constexpr const char* answerTooLarge = "The answer is too large.";
inline constexpr const char* connectionLost = "The connection to the booking service was lost.";
inline constexpr const char* documentNotSent = "A document could not be sent.";
inline constexpr const char* notCompleted = "The operation could not be completed.";
inline constexpr const char* notReached = "The booking service could not be reached.";
inline constexpr const char* notSecured = "A secure connection to the booking service could not be made.";
inline constexpr const char* requestCancelled = "The request was cancelled.";
inline constexpr const char* timedOut = "The booking service did not answer in time.";

} // namespace ombrivane::errorText
