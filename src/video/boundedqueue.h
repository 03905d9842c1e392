#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>

/**
 * A first-in first-out hand-over between two threads that holds at most `capacity` items, so that a
 * fast producer waits for a slow consumer instead of piling up memory.
 */
template<typename T> class BoundedQueue
{
public:
    explicit BoundedQueue(std::size_t capacity)
        : m_capacity(capacity)
    { }

    /** Waits for room; false once the queue is closed, and the item is dropped. */
    bool push(T item)
    {
        std::unique_lock lock(m_mutex);
        m_notFull.wait(lock, [&] { return m_closed || m_items.size() < m_capacity; });
        if (m_closed)
            return false;
        m_items.push_back(std::move(item));
        m_notEmpty.notify_one();
        return true;
    }

    /** Waits for an item; nothing once the queue is closed and empty. */
    std::optional<T> pop()
    {
        std::unique_lock lock(m_mutex);
        m_notEmpty.wait(lock, [&] { return m_closed || !m_items.empty(); });
        if (m_items.empty())
            return std::nullopt;
        T item = std::move(m_items.front());
        m_items.pop_front();
        m_notFull.notify_one();
        return item;
    }

    /** No more pushes; what is queued can still be popped. */
    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_closed = true;
        m_notFull.notify_all();
        m_notEmpty.notify_all();
    }

    /** Closes the queue and drops what it holds. */
    void cancel()
    {
        const std::lock_guard lock(m_mutex);
        m_closed = true;
        m_items.clear();
        m_notFull.notify_all();
        m_notEmpty.notify_all();
    }

private:
    const std::size_t m_capacity;
    std::mutex m_mutex;
    std::condition_variable m_notFull;
    std::condition_variable m_notEmpty;
    std::deque<T> m_items;
    bool m_closed = false;
};
