/// The modem message library: messages of tagged fields, asynchronous requests, indications.
///
/// On a device these functions come from the maker's library; on a workstation from ours. All numbers inside
/// fields are little-endian. Field 0 of a response carries the modem's 32-bit result, 0 for success.
#pragma once

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct {
    uint16_t msg_id;
    uint16_t
        tx_id; /* the transaction that an answer belongs to; given by the library when a request is sent */
    uint8_t slot_id; /* one-hot in the low four bits: 1, 2, 4 for the three modem instances */
} vorn_msg_hdr_t;

/// One message. The library's own part follows the header and is private to it.
typedef struct vorn_msg {
    vorn_msg_hdr_t hdr;
} vorn_msg_t;

typedef int32_t vorn_result_const_enum;

/// Runs on the library's delivery thread. The message belongs to the library and is valid during the call
/// only.
typedef void (*vorn_msg_cb)(vorn_msg_t* msg, void* user);

/// A new message without fields and with transaction 0; null when there is no memory. Free with
/// vorn_msg_deinit.
vorn_msg_t* vorn_msg_init(uint16_t msg_id, uint8_t slot_id);

/// The same with a transaction id of the caller's: an answer to the message that carries this transaction.
vorn_msg_t* vorn_msg_init_with_txid(uint16_t msg_id, uint8_t slot_id, uint16_t tx_id);

/// Frees a message; null is ignored. Never call it on a message that a callback was given.
void vorn_msg_deinit(vorn_msg_t* msg);

/// A new message with the header of `msg` and none of its fields; null when `msg` is null.
vorn_msg_t* vorn_msg_copy_hdr(const vorn_msg_t* msg);

/// Appends the fields of `from` to `to`. 0 when done, negative for a null message or no room.
int vorn_msg_copy_tlv(const vorn_msg_t* from, vorn_msg_t* to);

/// Adds a field of `len` bytes. A field added twice stands twice; readers see the first.
/// 0 when done, negative for a null message, a null value with a length, or no room.
int vorn_msg_add_tlv(vorn_msg_t* msg, uint16_t tag, uint16_t len, const void* val);

/// Adds an array field of `count` elements, all still empty. 0 when done, negative as above.
int vorn_msg_add_array(vorn_msg_t* msg, uint16_t tag, uint16_t count);

/// Sets element `idx` of an array field. 0 when done, negative when there is no such array, `idx` is not
/// below its count, the element is set already, or as above.
int vorn_msg_add_idx(vorn_msg_t* msg, uint16_t tag, uint16_t idx, uint16_t len, const void* val);

/// The bytes of a field, unaligned, and their number in `*len` (which may be null). Null, and `*len` 0, when
/// there is no such field or it is an array.
void* vorn_msg_get_val_ptr(const vorn_msg_t* msg, uint16_t tag, uint16_t* len);

/// The bytes of a field as a string; null when there is no such field or no terminating NUL inside it.
char* vorn_msg_get_val_str(const vorn_msg_t* msg, uint16_t tag);

/// The number of elements of an array field; 0 when there is no such array.
uint16_t vorn_msg_get_tlv_num(const vorn_msg_t* msg, uint16_t tag);

/// The bytes of element `idx` of an array field; null, and `*len` 0, when it does not exist or was never set.
void* vorn_msg_get_idx_ptr(const vorn_msg_t* msg, uint16_t tag, uint16_t idx, uint16_t* len);

/// Sends a request. The library has taken what it needs from `req` when this returns; the caller still owns
/// it.
///
/// @param flags  must be 0
/// @return 0 when accepted: `cb` is then called exactly once, from the delivery thread - possibly before this
///         function returns - with the modem's answer, or, when the link is lost, the answer is overdue or
///         the library is closed, with one made by the library that carries a non-zero result. Non-zero when
///         refused (library not initialised, null message or callback): `cb` is never called.
int vorn_msg_async_api(vorn_msg_t* req, vorn_msg_cb cb, uint32_t flags, void* user);

/// Has `cb` called, on the delivery thread, for each indication of this id on this slot. A second
/// registration of the same slot and id replaces the first. Negative when refused (library not initialised,
/// null callback).
int vorn_msg_register_ind_api(uint8_t slot_id, uint16_t msg_id, vorn_msg_cb cb, uint32_t flags, void* user);

/// Ends a registration; 0 also when there was none. When it returns, the callback is not running any more
/// (unless it is the callback that called).
int vorn_msg_unregister_ind_api(uint8_t slot_id, uint16_t msg_id);

/// Opens the link to the device that SETCOM named, for a client of this name. Negative when it can't be
/// opened; 0 when opened, or open already.
int vorn_init_debug(const char* name);

/// Closes the link: answers what is pending with a failure, then stops the delivery thread.
void vorn_deinit(void);

/// Ends all indication registrations, of all slots, as vorn_msg_unregister_ind_api would one.
void vorn_hashmap_reset(void);

/// Names the device of the next vorn_init_debug. The text is copied.
void SETCOM(const char* device);

#ifdef __cplusplus
}
#endif
