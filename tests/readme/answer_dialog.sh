#!/usr/bin/env bash
# Answers the dialog of the README's host as a person does, on a screen of its own: OK leaves a picture, Cancel none.
#   answer_dialog.sh COMMAND...: what starts the host
set -euo pipefail
if [ "${ANSWERING:-}" != yes ]; then
    ANSWERING=yes exec xvfb-run -a -s "-screen 0 1366x768x24" "$0" "$@"
fi
openbox >/dev/null 2>&1 &
manager=$!
trap 'kill $manager' EXIT
until xdotool get_desktop >/dev/null 2>&1; do # a window that comes before its manager is ready may never be shown
    sleep 0.1
done

answer() { # answer KEY: what the host ends with when its dialog gets that key
    local status=0
    rm -f costs.png
    QT_QPA_PLATFORM= "${command[@]}" >/dev/null 2>&1 &
    while kill -0 $! 2>/dev/null; do
        # The key goes to what has the focus: one sent to a window that goes in its midst would stay pressed.
        xdotool search --onlyvisible --name '^PieChart$' windowactivate --sync >/dev/null 2>&1 && xdotool key "$1"
        sleep 0.3
    done
    wait $! || status=$?
    echo $status
}
command=("$@")
status=$(answer Return)
[ "$status" = 0 ] && [ -s costs.png ] || { echo "FAILED: OK, $status"; exit 1; }
status=$(answer Escape)
[ "$status" = 1 ] && [ ! -e costs.png ] || { echo "FAILED: Cancel, $status"; exit 1; }
echo ok
