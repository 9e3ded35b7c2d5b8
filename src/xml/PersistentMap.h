#pragma once

#include <algorithm>
#include <compare>
#include <memory>
#include <utility>

namespace KzXmlLib10 {

/// An ordered map whose copies share what they have in common: copying takes constant time, setting an entry
/// makes a logarithmic number of new nodes.
///
/// A height-balanced binary tree of immutable nodes. Setting an entry copies the path to it. `Order` compares
/// two keys three ways.
template <class Key, class Value, class Order = std::compare_three_way>
class PersistentMap {
public:
    /// The value of a key, or null. Valid while any copy of the map holds that entry.
    const Value* Find(const Key& key) const {
        const Node* node = m_root.get();
        while (node) {
            const auto order = Order()(key, node->entry->first);
            if (order == 0)
                return &node->entry->second;
            node = order < 0 ? node->left.get() : node->right.get();
        }
        return nullptr;
    }

    void Set(Key key, Value value) {
        m_root = Insert(m_root, std::make_shared<const Entry>(std::move(key), std::move(value)));
    }

private:
    struct Node;
    using Entry = std::pair<Key, Value>;
    using EntryPtr = std::shared_ptr<const Entry>;
    using NodePtr = std::shared_ptr<const Node>;

    struct Node {
        Node(EntryPtr e, NodePtr l, NodePtr r)
            : entry(std::move(e)), left(std::move(l)), right(std::move(r)),
              height(std::max(Height(left), Height(right)) + 1) {}

        EntryPtr entry;
        NodePtr left;
        NodePtr right;
        int height;
    };

    static int Height(const NodePtr& node) { return node ? node->height : 0; }

    static NodePtr Make(EntryPtr entry, NodePtr left, NodePtr right) {
        return std::make_shared<const Node>(std::move(entry), std::move(left), std::move(right));
    }

    static NodePtr Insert(const NodePtr& node, const EntryPtr& entry) {
        if (!node)
            return Make(entry, nullptr, nullptr);
        const auto order = Order()(entry->first, node->entry->first);
        if (order == 0)
            return Make(entry, node->left, node->right);
        if (order < 0)
            return Balance(node->entry, Insert(node->left, entry), node->right);
        return Balance(node->entry, node->left, Insert(node->right, entry));
    }

    /// A node over two trees whose heights differ by two at most.
    static NodePtr Balance(const EntryPtr& entry, const NodePtr& left, const NodePtr& right) {
        if (Height(left) > Height(right) + 1)
            return RotateRight(entry, left, right);
        if (Height(right) > Height(left) + 1)
            return RotateLeft(entry, left, right);
        return Make(entry, left, right);
    }

    static NodePtr RotateRight(const EntryPtr& entry, const NodePtr& left, const NodePtr& right) {
        const NodePtr& inner = left->right;
        if (Height(left->left) >= Height(inner))
            return Make(left->entry, left->left, Make(entry, inner, right));
        return Make(inner->entry, Make(left->entry, left->left, inner->left),
                    Make(entry, inner->right, right));
    }

    static NodePtr RotateLeft(const EntryPtr& entry, const NodePtr& left, const NodePtr& right) {
        const NodePtr& inner = right->left;
        if (Height(right->right) >= Height(inner))
            return Make(right->entry, Make(entry, left, inner), right->right);
        return Make(inner->entry, Make(entry, left, inner->left),
                    Make(right->entry, inner->right, right->right));
    }

    NodePtr m_root;
};

} // namespace KzXmlLib10
