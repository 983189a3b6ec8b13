#pragma once

namespace lumenkit::win32 {

/// The life of an object whose end waits until none of its own code is at work any more. Belongs to
/// the object's thread.
class Life {
 public:
    Life(const Life&) = delete;
    Life& operator=(const Life&) = delete;

    /// Keeps the object as long as the hold lives. What comes after the outermost hold must not
    /// touch it.
    class Hold {
     public:
        /// Null: there is nothing to keep.
        explicit Hold(Life* life) : life_(life) {
            if (life_ != nullptr) {
                ++life_->holds_;
            }
        }
        ~Hold() {
            if (life_ != nullptr) {
                life_->LetGo();
            }
        }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

     private:
        Life* life_;
    };

    int Holds() const { return holds_; }

 protected:
    Life() = default;
    ~Life() = default;

    /// End runs with the last hold, of which there must be one.
    void EndLater() { waits_ = true; }
    virtual void End() = 0;

 private:
    void LetGo() {
        if (--holds_ == 0 && waits_) {
            waits_ = false;
            End();
        }
    }

    int holds_ = 0;
    bool waits_ = false;
};

}  // namespace lumenkit::win32
