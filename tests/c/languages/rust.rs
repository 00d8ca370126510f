// From Rust, which declares the C functions that it calls.
use std::ffi::{CStr, CString};
use std::os::raw::{c_char, c_void};
use std::thread;

#[link(name = "KZMUtilities-c")]
extern "C" {
    fn kzm_format_memory(options: *const c_char, bytes: f64) -> *mut c_char;
    fn kzm_mps_to_kph(meters_per_second: f64) -> f64;
    fn kzm_last_error() -> *const c_char;
    fn kzm_free(result: *mut c_void);
}

fn format_memory(options: &CStr, bytes: f64) -> Result<String, String> {
    unsafe {
        let text = kzm_format_memory(options.as_ptr(), bytes);
        if text.is_null() {
            return Err(CStr::from_ptr(kzm_last_error()).to_string_lossy().into_owned());
        }
        let copy = CStr::from_ptr(text).to_string_lossy().into_owned();
        kzm_free(text.cast());
        Ok(copy)
    }
}

fn main() {
    let options = CString::new("{\"space\": true}").unwrap();
    assert_eq!(format_memory(&options, 1073741824.0).as_deref(), Ok("1 GB"));
    assert_eq!(unsafe { kzm_mps_to_kph(10.0) }, 36.0);
    let broken = CString::new("{").unwrap();
    assert_eq!(format_memory(&broken, 1.0), Err("malformed JSON at byte 2".to_string()));

    let threads: Vec<_> = (0..4)
        .map(|number| {
            thread::spawn(move || {
                let options = CString::new(format!("{{\"space\": true, \"n\": {number}}}")).unwrap();
                (0..10000).all(|_| format_memory(&options, 1073741824.0).as_deref() == Ok("1 GB"))
            })
        })
        .collect();
    assert!(threads.into_iter().all(|thread| thread.join().unwrap()));
}
