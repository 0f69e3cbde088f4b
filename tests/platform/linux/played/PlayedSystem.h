#pragma once

#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <variant>
#include <vector>

#include <ApplicationServices/ApplicationServices.h>

namespace tessarine::testing {

// What is behind an element: something that another process draws. Handles to it are made anew with
// each question and know it by its number only, so that it may vanish under them.
struct PlayedNode {
    struct Number {}; // a value of a type that nobody reads

    // A list of nodes' numbers, where 0 stands for a member that is no element.
    using Value = std::variant<QString, std::vector<int>, Number>;

    pid_t pid = 0;
    std::map<QString, Value> attributes;
};

// The windows of other processes, and how the system answers for them. Objects that it gives count
// who owns them: one released too often is used after it was freed, one too seldom is left over.
// One at a time; all of a test's own thread.
class PlayedSystem {
public:
    PlayedSystem();
    PlayedSystem(const PlayedSystem&) = delete;
    PlayedSystem& operator=(const PlayedSystem&) = delete;
    ~PlayedSystem();

    // --- What is drawn ---

    // The root of a process, which it makes.
    int startProcess(pid_t pid);
    // All that it drew is gone, and its root answers nothing.
    void endProcess(pid_t pid);

    int add(pid_t pid, const QString& role, std::map<QString, PlayedNode::Value> attributes = {});
    int addText(pid_t pid, const QString& text);
    int addGroup(pid_t pid, const QString& description, const std::vector<int>& children);
    // A group with such texts in it.
    int addBanner(pid_t pid, const QString& description, const QStringList& texts);
    void setWindows(pid_t pid, const std::vector<int>& windows);

    PlayedNode& node(int number) { return nodes_.at(number); }
    void remove(int number) { nodes_.erase(number); }
    void removeAllBut(int number);

    // --- How it answers ---

    struct Question {
        int number;        // of all that were asked since the last resetQuestions, from 1
        int node;          // 0 for a process's root that is gone
        QString attribute; // empty: for its process
    };

    // Asked before each answer. What it gives is answered in its place.
    std::function<std::optional<AXError>(const Question&)> onQuestion;
    // Some systems hand over a value together with an error.
    bool givesValuesWithErrors = false;

    int questions() const { return questions_; }
    void resetQuestions() { questions_ = 0; }

    bool isTrusted = true;
    int prompts = 0;
    AXError observing = kAXErrorSuccess; // of making an observer
    AXError registering = kAXErrorSuccess;
    std::map<int, float> timeouts;      // by node
    std::set<QString> registeredInTime; // names that were registered with a time-out set before

    // --- Events ---

    // Calls the observers of the node's process that are attached and asked for it, as the run loop
    // does. Several may be attached; each may go meanwhile.
    void send(int node, const QString& name);

    std::size_t attachedObservers() const { return attached_.size(); }

    // Objects that somebody owns, the system's constants apart.
    static int ownedObjects();

private:
    friend struct ::PlayedObserver;
    friend struct PlayedAnswers;

    std::map<int, PlayedNode> nodes_;
    std::map<pid_t, int> roots_;
    int lastNode_ = 0;
    int questions_ = 0;
    std::vector<AXObserverRef> attached_;
};

} // namespace tessarine::testing
