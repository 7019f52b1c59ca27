"""Symbols of the reports as they stand in print: Nue_s is ν with a lowered s."""
GREEK = {"Nue": "ν", "Sigma": "σ", "Tau": "τ", "Gamma": "γ", "Varepsilon": "ε", "Epsilon": "ε"}
WHOLE = {"Gamma*z": "γ·z", "eo": "e<sub>0</sub>", "po": "p<sub>0</sub>", "uo": "u<sub>0</sub>", "ex": "e<sub>x</sub>",
         "ey": "e<sub>y</sub>"}
LOWERED = ("Es", "Cc", "Cv", "Cv1", "Cv2", "k1", "k2", "h1", "h2", "Tc", "Sc", "Sm", "Pt", "Hm", "Ws", "qv", "qe", "kf")


def printed(symbol):
    if not symbol:
        return "–"
    if symbol in WHOLE:
        return WHOLE[symbol]
    if symbol in LOWERED:
        return f"{symbol[0]}<sub>{symbol[1:]}</sub>"
    letter, _, index = symbol.partition("_")
    return GREEK.get(letter, letter) + (f"<sub>{index}</sub>" if index else "")
