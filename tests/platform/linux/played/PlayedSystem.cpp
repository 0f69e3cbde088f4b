#include "platform/linux/played/PlayedSystem.h"

#include "platform/Accessibility.h"

#include <QStringList>

#include <algorithm>
#include <memory>
#include <utility>

// --- Objects
// --------------------------------------------------------------------------------------

enum class PlayedType : CFTypeID { text = 1, list, dictionary, boolean, number, element, observer };

static int ownedObjectCount = 0;

struct PlayedObject {
    explicit PlayedObject(PlayedType type)
        : type(type) {
        ++ownedObjectCount;
    }
    virtual ~PlayedObject() { --ownedObjectCount; }
    PlayedObject(const PlayedObject&) = delete;
    PlayedObject& operator=(const PlayedObject&) = delete;

    const PlayedType type;
    int owners = 1;
};

struct PlayedText : PlayedObject {
    explicit PlayedText(QString text)
        : PlayedObject(PlayedType::text)
        , text(std::move(text)) {}
    const QString text;
};

struct PlayedList : PlayedObject {
    PlayedList()
        : PlayedObject(PlayedType::list) {}
    ~PlayedList() override {
        for (PlayedObject* member : members)
            CFRelease(member);
    }
    std::vector<PlayedObject*> members;
};

struct PlayedDictionary : PlayedObject {
    PlayedDictionary(const PlayedObject* key, const PlayedObject* value)
        : PlayedObject(PlayedType::dictionary)
        , key(key)
        , value(value) {}
    const PlayedObject* const key; // constants alone
    const PlayedObject* const value;
};

struct PlayedBoolean : PlayedObject {
    PlayedBoolean()
        : PlayedObject(PlayedType::boolean) {}
};

struct PlayedNumber : PlayedObject {
    PlayedNumber()
        : PlayedObject(PlayedType::number) {}
};

struct PlayedElement : PlayedObject {
    PlayedElement(pid_t pid, int node)
        : PlayedObject(PlayedType::element)
        , pid(pid)
        , node(node) {}
    const pid_t pid;
    const int node; // 0 for the root, by its process
};

struct PlayedSource {
    PlayedObserver* observer;
};

struct PlayedObserver : PlayedObject {
    PlayedObserver(pid_t pid, AXObserverCallback callback)
        : PlayedObject(PlayedType::observer)
        , pid(pid)
        , callback(callback) {}

    const pid_t pid;
    const AXObserverCallback callback;
    std::map<QString, void*> contexts; // by name of the event
    PlayedSource source{this};
};

namespace tessarine::testing {

namespace {

PlayedSystem* playedSystem = nullptr;

const PlayedObject* objectOf(CFTypeRef reference) {
    return static_cast<const PlayedObject*>(reference);
}

PlayedObject* mutableObjectOf(CFTypeRef reference) {
    return const_cast<PlayedObject*>(objectOf(reference));
}

struct GiveBack {
    void operator()(const PlayedObject* object) const { CFRelease(object); }
};

template <typename Object>
using Held = std::unique_ptr<const Object, GiveBack>;

// Objects of the constants below live as long as the program.
struct Constants {
    PlayedText prompt{QStringLiteral("AXTrustedCheckOptionPrompt")};
    PlayedText defaultMode{QStringLiteral("kCFRunLoopDefaultMode")};
    PlayedBoolean yes;
};

Constants& constants() {
    static auto& made = *new Constants;
    return made;
}

const int constantObjects = (constants(), ownedObjectCount);

} // namespace

// How the system answers, for the functions at the end of this file.
struct PlayedAnswers {
    PlayedSystem& system;

    int nodeOf(AXUIElementRef element) const {
        if (element->node != 0)
            return element->node;
        const auto root = system.roots_.find(element->pid);
        return root == system.roots_.end() ? 0 : root->second;
    }

    AXError ask(AXUIElementRef element, const QString& attribute) const {
        const int number = ++system.questions_;
        if (system.onQuestion) {
            if (const auto answer = system.onQuestion({number, nodeOf(element), attribute}))
                return *answer;
        }
        return system.nodes_.contains(nodeOf(element)) ? kAXErrorSuccess : kAXErrorInvalidUIElement;
    }

    AXError copy(AXUIElementRef element, const QString& attribute, CFTypeRef* value) const {
        const AXError error = ask(element, attribute);
        if (error != kAXErrorSuccess) {
            if (system.givesValuesWithErrors)
                *value = new PlayedText(QStringLiteral("left over"));
            return error;
        }
        const PlayedNode& node = system.nodes_.at(nodeOf(element));
        const auto found = node.attributes.find(attribute);
        if (found == node.attributes.end())
            return kAXErrorNoValue;
        *value = std::visit([&](const auto& given) { return made(node, given); }, found->second);
        return kAXErrorSuccess;
    }

    static CFTypeRef made(const PlayedNode&, const QString& text) { return new PlayedText(text); }
    static CFTypeRef made(const PlayedNode&, PlayedNode::Number) { return new PlayedNumber; }
    static CFTypeRef made(const PlayedNode& parent, const std::vector<int>& numbers) {
        auto* const list = new PlayedList;
        for (const int number : numbers) {
            if (number == 0)
                list->members.push_back(new PlayedNumber);
            else
                list->members.push_back(new PlayedElement(parent.pid, number));
        }
        return list;
    }

    std::vector<AXObserverRef>& attached() const { return system.attached_; }
};

PlayedSystem::PlayedSystem() {
    playedSystem = this;
}

PlayedSystem::~PlayedSystem() {
    playedSystem = nullptr;
}

int PlayedSystem::startProcess(pid_t pid) {
    nodes_[++lastNode_] = {pid, {{ax::windows, std::vector<int>()}}};
    roots_[pid] = lastNode_;
    return lastNode_;
}

void PlayedSystem::endProcess(pid_t pid) {
    std::erase_if(nodes_, [pid](const auto& entry) { return entry.second.pid == pid; });
    roots_.erase(pid);
}

void PlayedSystem::removeAllBut(int number) {
    std::erase_if(nodes_, [number](const auto& entry) { return entry.first != number; });
}

int PlayedSystem::add(pid_t pid, const QString& role,
                      std::map<QString, PlayedNode::Value> attributes) {
    attributes[ax::role] = role;
    nodes_[++lastNode_] = {pid, std::move(attributes)};
    return lastNode_;
}

int PlayedSystem::addText(pid_t pid, const QString& text) {
    return add(pid, ax::staticText, {{ax::value, text}});
}

int PlayedSystem::addGroup(pid_t pid, const QString& description,
                           const std::vector<int>& children) {
    return add(pid, ax::group, {{ax::description, description}, {ax::children, children}});
}

int PlayedSystem::addBanner(pid_t pid, const QString& description, const QStringList& texts) {
    std::vector<int> children{add(pid, QStringLiteral("AXImage"))};
    for (const QString& text : texts)
        children.push_back(addText(pid, text));
    return addGroup(pid, description, children);
}

void PlayedSystem::setWindows(pid_t pid, const std::vector<int>& windows) {
    node(roots_.at(pid)).attributes[ax::windows] = windows;
}

// The run loop owns what it calls for, the observer with its source and the element, and nothing of
// what the callback's context leads to.
void PlayedSystem::send(int node, const QString& name) {
    const auto found = nodes_.find(node);
    const pid_t pid = found == nodes_.end() ? 0 : found->second.pid;
    std::vector<AXObserverRef> told = attached_;
    for (AXObserverRef observer : told)
        CFRetain(observer);
    const Held<PlayedElement> element(new PlayedElement(pid, node));
    const Held<PlayedText> text(new PlayedText(name));
    for (AXObserverRef observer : told) {
        const bool isAttached =
            std::find(attached_.begin(), attached_.end(), observer) != attached_.end();
        const auto context = observer->contexts.find(name);
        if (isAttached && observer->pid == pid && context != observer->contexts.end())
            observer->callback(observer, element.get(), text.get(), context->second);
        CFRelease(observer);
    }
}

int PlayedSystem::ownedObjects() {
    return ownedObjectCount - constantObjects;
}

} // namespace tessarine::testing

// --- The system's functions
// -----------------------------------------------------------------------

using tessarine::testing::constants;
using tessarine::testing::mutableObjectOf;
using tessarine::testing::objectOf;
using tessarine::testing::playedSystem;

namespace {

tessarine::testing::PlayedAnswers answers() {
    return {*playedSystem};
}

} // namespace

const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFBooleanRef kCFBooleanTrue = &constants().yes;
const CFRunLoopMode kCFRunLoopDefaultMode = &constants().defaultMode;
const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks{};
const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks{};
const CFStringRef kAXTrustedCheckOptionPrompt = &constants().prompt;

CFTypeRef CFRetain(CFTypeRef object) {
    ++mutableObjectOf(object)->owners;
    return object;
}

void CFRelease(CFTypeRef object) {
    if (--mutableObjectOf(object)->owners == 0)
        delete mutableObjectOf(object);
}

CFTypeID CFGetTypeID(CFTypeRef object) {
    return static_cast<CFTypeID>(objectOf(object)->type);
}

CFTypeID CFStringGetTypeID() {
    return static_cast<CFTypeID>(PlayedType::text);
}

CFIndex CFStringGetLength(CFStringRef text) {
    return text->text.size();
}

void CFStringGetCharacters(CFStringRef text, CFRange range, UniChar* buffer) {
    const QString part = text->text.sliced(range.location, range.length);
    std::copy_n(reinterpret_cast<const UniChar*>(part.utf16()), part.size(), buffer);
}

CFStringRef CFStringCreateWithCharacters(CFAllocatorRef, const UniChar* characters, CFIndex count) {
    return new PlayedText(QString(reinterpret_cast<const QChar*>(characters), count));
}

CFTypeID CFArrayGetTypeID() {
    return static_cast<CFTypeID>(PlayedType::list);
}

CFIndex CFArrayGetCount(CFArrayRef list) {
    return CFIndex(list->members.size());
}

const void* CFArrayGetValueAtIndex(CFArrayRef list, CFIndex index) {
    return list->members.at(std::size_t(index));
}

CFDictionaryRef CFDictionaryCreate(CFAllocatorRef, const void** keys, const void** values, CFIndex,
                                   const CFDictionaryKeyCallBacks*,
                                   const CFDictionaryValueCallBacks*) {
    return new PlayedDictionary(objectOf(keys[0]), objectOf(values[0]));
}

CFRunLoopRef CFRunLoopGetMain() {
    return nullptr;
}

void CFRunLoopAddSource(CFRunLoopRef, CFRunLoopSourceRef source, CFRunLoopMode mode) {
    if (mode == kCFRunLoopDefaultMode)
        answers().attached().push_back(source->observer);
}

void CFRunLoopRemoveSource(CFRunLoopRef, CFRunLoopSourceRef source, CFRunLoopMode mode) {
    if (mode == kCFRunLoopDefaultMode)
        std::erase(answers().attached(), source->observer);
}

Boolean AXIsProcessTrusted() {
    return playedSystem->isTrusted;
}

Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options) {
    if (options->key == &constants().prompt && options->value == &constants().yes)
        ++playedSystem->prompts;
    return playedSystem->isTrusted;
}

CFTypeID AXUIElementGetTypeID() {
    return static_cast<CFTypeID>(PlayedType::element);
}

AXUIElementRef AXUIElementCreateApplication(pid_t pid) {
    return new PlayedElement(pid, 0);
}

AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                      CFTypeRef* value) {
    return answers().copy(element, attribute->text, value);
}

AXError AXUIElementGetPid(AXUIElementRef element, pid_t* pid) {
    const AXError error = answers().ask(element, {});
    if (error == kAXErrorSuccess)
        *pid = element->pid;
    return error;
}

AXError AXUIElementSetMessagingTimeout(AXUIElementRef element, float seconds) {
    playedSystem->timeouts[answers().nodeOf(element)] = seconds;
    return kAXErrorSuccess;
}

AXError AXObserverCreate(pid_t pid, AXObserverCallback callback, AXObserverRef* observer) {
    if (playedSystem->observing == kAXErrorSuccess)
        *observer = new PlayedObserver(pid, callback);
    return playedSystem->observing;
}

AXError AXObserverAddNotification(AXObserverRef observer, AXUIElementRef element, CFStringRef name,
                                  void* context) {
    if (playedSystem->registering != kAXErrorSuccess)
        return playedSystem->registering;
    if (playedSystem->timeouts.contains(answers().nodeOf(element)))
        playedSystem->registeredInTime.insert(name->text);
    observer->contexts[name->text] = context;
    return kAXErrorSuccess;
}

CFRunLoopSourceRef AXObserverGetRunLoopSource(AXObserverRef observer) {
    return &observer->source;
}
