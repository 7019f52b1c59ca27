"""The theories that the verification manual compares Lithmark with.

Each module recomputes one author's formula or equation, apart from the program: with mpmath in 30 digits, or with numpy in
64 bits where an integral over an area or a system of equations is solved. Lengths in m, forces in kN, pressures in kN/m2;
compression and downward displacement are positive; displacements and settlements come out in cm.
"""
import mpmath

mpmath.mp.dps = 30
