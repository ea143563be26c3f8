# Types into the demonstration form with real keystrokes and takes its pictures. Sourced by ./demo.

picture() { import -window root "$out/$1.png"; }
keys() { xdotool key --clearmodifiers --delay 25 "$@"; sleep 0.15; }
write() { xdotool type --clearmodifiers --delay 30 "$1"; sleep 0.2; }
field() { write "$2"; keys Tab; } # the name is for the reader

# place NAME: sets left top right bottom of a field on the screen
place() { read -r left top right bottom < <(awk -v n="$1" '$1 == "place" && $2 == n {print $3, $4, $5, $6}' <(tr -d '\r' <"$out/output.txt")); }
click_at() { xdotool mousemove "$1" "$2" click 1; sleep 0.4; }

focus_form() {
  local window
  window=$(xdotool search --sync --onlyvisible --name 'Vela - demonstra' | head -1)
  xdotool windowfocus "$window"; sleep 0.5
  place Nome; click_at $((left + 20)) $(((top + bottom) / 2))
}

drive_fields() {
  focus_form
  field Nome 'maria das dores e souza'
  field Codigo 'ab12-xyz3f'
  field Placa 'abc1234'
  field CPF '12345678909'
  field Senha 'segredo'
  write 'primeira linha'; keys Return; field Notas 'segunda linha'; keys Tab
  field Preco '1234,5'
  field Percentual '12'
  field Caixa '123456'
  field Data '29022024'
  field Hora '0930'
  keys Tab
  write 'zeca'; sleep 0.6; picture entry-tip; keys Tab
  keys Tab # the date with the alert comes last: its balloon would cover what is below
  write 'azul'; picture focus; keys Tab
  place Cores; xdotool mousemove $((left + 30)) $(((top + bottom) / 2)); sleep 0.4; picture hover
  xdotool mousemove 5 5; sleep 0.3
  for border in Solida Tracos Pontos TracosPontos Relevo XP; do field "$border" "borda"; done
  place Vencimento; click_at $((left + 20)) $(((top + bottom) / 2)); keys Home
  field Vencimento '31022024'; sleep 0.6; picture error-alert; keys Tab; sleep 5

  place Data; click_at $((right - 9)) $(((top + bottom) / 2)); sleep 1.5; picture calendar
  place Percentual; click_at $((left + 20)) $(((top + bottom) / 2)); keys F2; sleep 1.5; picture calculator
  keys plus 3 equal; sleep 0.2; picture calculator-result; keys F2; sleep 0.4
  place Nome; click_at $((left + 20)) $(((top + bottom) / 2))
  keys F9; sleep 0.8
  picture form
  tr -d '\r' <"$out/output.txt" | grep -v -e '^place ' -e '^ready' >"$out/transcript.txt" || true
  cat "$out/transcript.txt"
}

# Waits for a window of this title to be up and painted.
shown() {
  local tries=0
  until xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; do tries=$((tries + 1)); [ $tries -lt 60 ] || break; sleep 0.5; done
  sleep 1.5
}

# Of the main page: its tabs by clicks, the palette by a swatch, and a profile of the letters of Vela.
drive_main_page() {
  picture page-1
  click_at 252 347; keys space; shown 'Paleta de Cores'; keys Down Right; sleep 0.2; picture palette; keys Escape; sleep 0.5
  click_at 172 144; picture page-1-dates
  click_at 227 144; picture page-1-mask
  click_at 282 144
  click_at 112 220; keys alt+p # typing is not free
  local digit
  for digit in 0 1 2 3 4 5 6 7 8 9; do keys "$digit" space; done
  click_at 155 384; shown 'Vela - By Aldren'; write 'Digitos'; keys Return; sleep 0.5
  keys alt+m Down; sleep 0.3
  picture page-1-typing
}

drive_design() {
  shown 'Propriedades de'
  local page=1
  drive_main_page
  while [ $page -lt 5 ]; do
    page=$((page + 1)); keys ctrl+Tab; sleep 1; picture "page-$page"
  done
}
