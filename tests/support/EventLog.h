#pragma once

#include "support/Basics.h"

namespace KzXmlLib10::support {

/// A listener that writes down every event of a collection, such as "add(b) added(b) change " or
/// "remove(3) removed(null) change ".
class EventLog : public IEventSink {
public:
    /// `describe` turns the data of an add event into text. Declare the log in front of the collection, whose
    /// destructor has events too.
    explicit EventLog(std::function<std::string(void*)> describe) : m_describe(std::move(describe)) {}

    /// Registers with the collection. Events of any other sender will be marked with "?".
    void Watch(CXmlCollectionBase& collection) {
        m_expectedSender = &collection;
        collection.AddEventListener(this);
    }

    void OnEvent(CXmlObjectBase* sender, MsgType type, void* data) override {
        static constexpr const char* names[] = {"change", "add", "added", "remove", "removed"};
        m_events += sender == m_expectedSender ? "" : "?";
        m_events += names[type];
        if (type == MsgType_CollectionAdd || type == MsgType_CollectionAddComplete)
            m_events += "(" + m_describe(data) + ")";
        else if (type != MsgType_CollectionChange)
            m_events += data ? "(" + std::to_string(*static_cast<int*>(data)) + ")" : "(null)";
        else if (data)
            m_events += "(data)";
        m_events += " ";
        if (during)
            during(type);
    }
    CXmlObjectBase* GetBase() override { return nullptr; }

    /// The events since the last call.
    std::string Take() { return std::exchange(m_events, std::string()); }

    /// The events of the action alone, and behind them the message of its failure, if it fails.
    template <class E = CKzInvalidParamException, class Action>
    std::string Of(Action action) {
        m_events.clear();
        const std::string failure = Failure<E>(action);
        return Take() + (failure == "no failure" ? "" : failure);
    }

    /// What the listener does besides, if anything: it may throw, or change the collection.
    std::function<void(MsgType)> during;

private:
    CXmlObjectBase* m_expectedSender = nullptr;
    std::function<std::string(void*)> m_describe;
    std::string m_events;
};

} // namespace KzXmlLib10::support
