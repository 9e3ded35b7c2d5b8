#pragma once

#include <algorithm>
#include <memory>
#include <utility>

namespace KzXmlLib10 {

/// An ordered map whose copies share what they have in common: copying takes constant time, setting an entry
/// makes a logarithmic number of new nodes.
///
/// A height-balanced binary tree of immutable nodes. Setting an entry copies the path to it.
template <class Key, class Value>
class PersistentMap {
public:
    /// The value of a key, or null. Valid while any copy of the map holds that entry.
    const Value* Find(const Key& key) const {
        const Node* node = m_root.get();
        while (node) {
            if (key < node->entry->first)
                node = node->left.get();
            else if (node->entry->first < key)
                node = node->right.get();
            else
                return &node->entry->second;
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
        if (entry->first < node->entry->first)
            return Balance(node->entry, Insert(node->left, entry), node->right);
        if (node->entry->first < entry->first)
            return Balance(node->entry, node->left, Insert(node->right, entry));
        return Make(entry, node->left, node->right);
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
