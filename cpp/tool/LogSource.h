#pragma once

/// Source labels of the log under which several files write.
namespace LogSource {

/// Everything that a host editor, a learner or an author's tool reaches through TutorialManager is one part
/// to who reads the log, whichever class does it.
inline constexpr const char *kTutorialManager = R"(..\..\tutorial\cpp\Tutorial\TutorialManager.cpp)";

} // namespace LogSource
