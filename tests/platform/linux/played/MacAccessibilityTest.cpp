#include "platform/macos/MacAccessibility.h"

#include "platform/linux/played/PlayedSystem.h"
#include "support/Printers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::PlayedNode;
using testing::PlayedSystem;
using namespace Qt::StringLiterals;

constexpr qint32 drawingProcess = 501;

class MacAccessibilityTest : public ::testing::Test {
protected:
    void TearDown() override {
        answer_.reset();
        EXPECT_EQ(PlayedSystem::ownedObjects(), 0) << "somebody still owns them";
    }

    // What the root's attribute of this name reads as.
    const std::optional<AXValue>& read(const QString& name = ax::value) {
        answer_ = accessibility_.copyAttributeValue(
            accessibility_.applicationElement(drawingProcess), name);
        return answer_;
    }

    const std::optional<AXValue>& readAs(const PlayedNode::Value& value) {
        system_.node(root_).attributes[ax::value] = value;
        return read();
    }

    PlayedSystem system_;
    const int root_ = system_.startProcess(drawingProcess);
    MacAccessibility accessibility_;
    std::optional<AXValue> answer_;
};

// Values

TEST_F(MacAccessibilityTest, ATextIsEachOfItsUnits) {
    for (const QString& text : {u""_qs, u"Hello"_qs, u"Zoë 漢字 🎉"_qs, QString(QChar(0xd800)),
                                QString(QChar(0)) + u'x', QString(20000, u'ä')})
        EXPECT_EQ(readAs(text), std::optional(AXValue(text)));
}

TEST_F(MacAccessibilityTest, AListIsItsElements) {
    const int first = system_.addText(drawingProcess, u"one"_qs);
    const int second = system_.addText(drawingProcess, u"two"_qs);
    ASSERT_TRUE(readAs(std::vector<int>{first, second}));
    std::vector<QString> texts;
    for (const AXElementRef& element : std::get<std::vector<AXElementRef>>(*answer_))
        texts.push_back(std::get<QString>(*accessibility_.copyAttributeValue(element, ax::value)));
    EXPECT_THAT(texts, ElementsAre(u"one"_qs, u"two"_qs));
}

TEST_F(MacAccessibilityTest, AnEmptyListIsOne) {
    EXPECT_EQ(readAs(std::vector<int>()), std::optional(AXValue(std::vector<AXElementRef>())));
}

TEST_F(MacAccessibilityTest, AListWithSomethingElseInItIsNone) {
    const int text = system_.addText(drawingProcess, u"one"_qs);
    EXPECT_EQ(readAs(std::vector<int>{text, 0, text}), std::optional(AXValue()));
}

TEST_F(MacAccessibilityTest, AValueOfAnotherTypeIsThereButNone) {
    EXPECT_EQ(readAs(PlayedNode::Number()), std::optional(AXValue()));
}

TEST_F(MacAccessibilityTest, AMissingValueIsNothing) {
    EXPECT_EQ(read(u"AXNothing"_qs), std::nullopt);
}

TEST_F(MacAccessibilityTest, AHandleOutlivesWhatItStandsFor) {
    const int text = system_.addText(drawingProcess, u"one"_qs);
    ASSERT_TRUE(readAs(std::vector<int>{text}));
    const AXElementRef element = std::get<std::vector<AXElementRef>>(*answer_).front();
    EXPECT_EQ(accessibility_.pid(element), drawingProcess);
    system_.remove(text);
    EXPECT_EQ(accessibility_.copyAttributeValue(element, ax::value), std::nullopt);
    EXPECT_EQ(accessibility_.pid(element), std::nullopt);
}

class MacAccessibilityErrorTest : public MacAccessibilityTest,
                                  public ::testing::WithParamInterface<AXError> {
protected:
    MacAccessibilityErrorTest() {
        system_.node(root_).attributes[ax::value] = u"text"_qs;
        system_.onQuestion = [](const auto&) { return GetParam(); };
    }
};

TEST_P(MacAccessibilityErrorTest, IsNoAnswer) {
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_EQ(accessibility_.pid(accessibility_.applicationElement(drawingProcess)), std::nullopt);
}

TEST_P(MacAccessibilityErrorTest, AValueThatComesWithItIsGivenBack) {
    system_.givesValuesWithErrors = true;
    EXPECT_EQ(read(), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Each, MacAccessibilityErrorTest,
                         ::testing::Values(kAXErrorFailure, kAXErrorIllegalArgument,
                                           kAXErrorInvalidUIElement, kAXErrorCannotComplete,
                                           kAXErrorAttributeUnsupported, kAXErrorNotImplemented,
                                           kAXErrorAPIDisabled, kAXErrorNoValue));

// The permission

TEST_F(MacAccessibilityTest, AsksForThePermissionOnlyWhenItShall) {
    EXPECT_TRUE(accessibility_.isProcessTrusted());
    system_.isTrusted = false;
    EXPECT_FALSE(accessibility_.isProcessTrusted());
    EXPECT_EQ(system_.prompts, 0);
    accessibility_.promptForTrust();
    EXPECT_EQ(system_.prompts, 1);
}

// Time-outs

TEST_F(MacAccessibilityTest, SetsTheTimeoutOfAnElement) {
    accessibility_.setMessagingTimeout(accessibility_.applicationElement(drawingProcess), 2.0);
    EXPECT_EQ(system_.timeouts.at(root_), 2.0F);
}

// Observers

class MacObserverTest : public MacAccessibilityTest {
protected:
    void TearDown() override {
        observer_.reset();
        EXPECT_EQ(system_.attachedObservers(), 0U);
        MacAccessibilityTest::TearDown();
    }

    void observe(AXCallback callback) {
        observer_ = accessibility_.createObserver(drawingProcess, std::move(callback));
        ASSERT_NE(observer_, nullptr);
        for (const QString& name : {ax::windowCreated, ax::valueChanged})
            observer_->addNotification(accessibility_.applicationElement(drawingProcess), name);
        observer_->attachToMainRunLoop();
    }

    // Keeps what comes.
    void observe() {
        observe([this](const AXElementRef& element, const QString& name) {
            EXPECT_EQ(accessibility_.pid(element), drawingProcess);
            events_.push_back(name);
        });
    }

    std::unique_ptr<AXObserver> observer_;
    std::vector<QString> events_;
};

TEST_F(MacObserverTest, TellsOfTheEventsThatItWasAskedFor) {
    observe();
    system_.send(root_, ax::windowCreated);
    system_.send(root_, ax::elementDestroyed);
    system_.send(root_, ax::valueChanged);
    EXPECT_THAT(events_, ElementsAre(ax::windowCreated, ax::valueChanged));
}

TEST_F(MacObserverTest, HearsNothingBeforeItIsAttachedAndAfterItsEnd) {
    observer_ = accessibility_.createObserver(
        drawingProcess, [this](const auto&, const QString& name) { events_.push_back(name); });
    observer_->addNotification(accessibility_.applicationElement(drawingProcess), ax::valueChanged);
    system_.send(root_, ax::valueChanged);
    observer_->attachToMainRunLoop();
    observer_.reset();
    system_.send(root_, ax::valueChanged);
    EXPECT_THAT(events_, IsEmpty());
}

TEST_F(MacObserverTest, MayBeDestroyedInItsOwnCallback) {
    const std::string longText(1000, 'x'); // a copy that the callback owns
    observe([this, longText](const auto&, const QString& name) {
        observer_.reset();
        events_.push_back(name + QString::number(longText.size()));
    });
    system_.send(root_, ax::valueChanged);
    system_.send(root_, ax::valueChanged);
    EXPECT_THAT(events_, ElementsAre(ax::valueChanged + u"1000"_qs));
}

TEST_F(MacObserverTest, MayBeReplacedInItsOwnCallback) {
    observe([this](const auto&, const QString&) { observe(); });
    system_.send(root_, ax::valueChanged);
    system_.send(root_, ax::windowCreated);
    EXPECT_THAT(events_, ElementsAre(ax::windowCreated));
}

TEST_F(MacObserverTest, TheProcessMayEndInTheCallback) {
    AXElementRef told;
    observe([&](const AXElementRef& element, const QString&) {
        system_.endProcess(drawingProcess);
        told = element;
        EXPECT_EQ(accessibility_.copyAttributeValue(element, ax::windows), std::nullopt);
        EXPECT_EQ(accessibility_.pid(element), std::nullopt);
    });
    system_.send(root_, ax::valueChanged);
    ASSERT_NE(told, nullptr);
    EXPECT_EQ(accessibility_.pid(told), std::nullopt);
}

TEST_F(MacObserverTest, IsNoneWhereTheSystemRefuses) {
    for (const AXError error : {kAXErrorFailure, kAXErrorAPIDisabled, kAXErrorCannotComplete}) {
        system_.observing = error;
        EXPECT_EQ(accessibility_.createObserver(drawingProcess, [](const auto&, const auto&) {}),
                  nullptr);
    }
}

TEST_F(MacObserverTest, AnEventThatCannotBeHadDoesNoHarm) {
    system_.registering = kAXErrorNotificationUnsupported;
    observe();
    system_.send(root_, ax::valueChanged);
    EXPECT_THAT(events_, IsEmpty());
}

// A process that hangs would keep the main thread for as long as the system waits by itself.
TEST_F(MacObserverTest, RegistersWithATimeoutSet) {
    observe();
    EXPECT_THAT(system_.registeredInTime, ElementsAre(ax::valueChanged, ax::windowCreated));
    EXPECT_LE(system_.timeouts.at(root_), 2.0F);
}

} // namespace
} // namespace tessarine
